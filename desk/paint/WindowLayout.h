// Where an application's window and its parts stand, in window coordinates of the desk, for painting and for
// the pointer.
//
// Like menus, windows keep the size in which they can be read, whatever the displays' scale. One place in a
// window is where it is on its display: halfway across, and above the middle, so that a window in the middle
// of a small display leaves the Dock free. Title bars are below the menu bar.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

#include <cstddef>

namespace kestrune::desk {

struct WindowLayout {
    Rect frame;
    Rect titleBar; // without height when the window has none
    Rect closeButton;
    Rect minimizeButton;
    Rect content; // the scene's upper left corner is its own

    friend bool operator==(const WindowLayout&, const WindowLayout&) = default;
};

inline constexpr double WindowAnchorHeight = 0.35; // of the window's height, from its top

// Kept inside the desk's window.
WindowLayout windowLayout(const DeskLayout& layout, const WindowPicture& shown, Size window);

// With the upper left corner of the frame at a place.
WindowLayout windowLayoutAt(Point topLeft, const WindowPicture& shown);

// A button or switch of the window's scene, in the layout's coordinates; a null rectangle for an element that
// is neither.
Rect controlArea(const WindowLayout& layout, const WindowPicture& shown, std::size_t element);

} // namespace kestrune::desk
