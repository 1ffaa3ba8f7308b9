// Where the parts of an application's window stand, in global display coordinates, for painting and for the
// pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/SystemPicture.h"

#include <cstddef>

namespace kestrune::desk {

struct WindowLayout {
    Rect frame;
    Rect titleBar; // without height when the window has none
    Rect closeButton;
    Rect minimizeButton;
    Rect content; // the scene's upper left corner is its own
};

WindowLayout windowLayout(const WindowPicture& shown);

// A button or switch of the window's scene; a null rectangle for an element that
// is neither.
Rect controlArea(const WindowLayout& layout, const WindowPicture& shown, std::size_t element);

} // namespace kestrune::desk
