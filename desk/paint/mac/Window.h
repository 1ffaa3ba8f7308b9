// The windows of applications. Places are in global display coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/PanelPainter.h"
#include "desk/paint/mac/SystemPicture.h"

#include <optional>

namespace kestrune::desk {

struct WindowLayout {
    Rect frame;
    Rect titleBar; // without height when the window has none
    Rect closeButton;
    Rect minimizeButton;
    Rect content; // the scene's upper left corner is its own
};

WindowLayout windowLayout(const WindowPicture& shown);

// Of a button or switch, in the scene's coordinates; absent for an element that is neither.
std::optional<Rect> controlFrame(const ui::Element& element);

// The key window throws a deeper shadow.
PanelStyle windowPanelStyle(const Palette& palette, const WindowPicture& shown);

// Title bar and scene; the panel is not painted with them.
void paintWindow(const Canvas& canvas, const WindowPicture& shown);

// All of it, as small as it takes to fit into the middle of the area.
void paintMiniature(const Canvas& canvas, const Rect& area, const WindowPicture& shown);

} // namespace kestrune::desk
