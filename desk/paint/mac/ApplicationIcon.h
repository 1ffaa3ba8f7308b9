// The icon of an application.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"

#include <optional>
#include <string>

namespace kestrune::desk {

// Without a path, and for a file that cannot be read, a general icon.
void paintApplicationIcon(const Canvas& canvas, const std::optional<std::string>& path, const Rect& area);

// What AppKit calls the icon of the application whose process it is.
inline constexpr const char* OwnIconSymbol = "NSApplicationIcon";

// The desk's own symbol for the icon in that file, as large as its font. The second takes the name apart;
// absent for any other symbol. Nobody has told yet which file the application's own icon is in.
std::string iconSymbol(const std::string& path);
std::optional<std::string> pathOfIcon(const std::string& symbol);

} // namespace kestrune::desk
