// The icon of an application.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"
#include "sim/formats/IconSymbol.h"

#include <optional>
#include <string>

namespace kestrune::desk {

using sim::iconSymbol;
using sim::pathOfIcon;

// Without a path, and for a file that cannot be read, a general icon.
void paintApplicationIcon(const Canvas& canvas, const std::optional<std::string>& path, const Rect& area);

} // namespace kestrune::desk
