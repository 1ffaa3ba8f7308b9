// The names of styles, as they are written in the source.
#pragma once

#include "ui/Font.h"
#include "ui/Style.h"

#include <string_view>

namespace kestrune::ui {

std::string_view nameOf(TextStyle style);
std::string_view nameOf(FontWeight weight);
std::string_view nameOf(Color color);
std::string_view nameOf(TextAlignment alignment);
std::string_view nameOf(ImageScale scale);
std::string_view nameOf(ControlSize size);
std::string_view nameOf(ButtonRole role);
std::string_view nameOf(CornerStyle style);
std::string_view nameOf(KeyboardShortcut shortcut);

} // namespace kestrune::ui
