// The Dock, and the trail of its last move.
#pragma once

#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/Canvas.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

// The Dock's parts in global display coordinates.
struct DockPlace {
    Rect panel;
    double scale = 1;         // less than 1 on a display that is too narrow for it
    std::vector<Rect> icons;  // of others
    std::optional<Rect> icon; // of the application, while it has one
    double separator = 0;     // its middle, before the tiles and the last icon
    std::vector<Rect> tiles;  // of minimised windows
};
DockPlace dockPlace(const Rect& display, const DeskPicture& picture);

// All that the Dock and its shadow cover.
Rect dockExtent(const DockPlace& dock);

// With a window in each tile.
void paintDock(const Canvas& canvas, const DockPlace& dock, const DeskPicture& picture);

// A dotted arc between two places of the Dock's panel, in window coordinates, and the outline of the place
// that it left.
void paintDockTrail(cairo_t* context, const Rect& from, const Rect& to, double age);

} // namespace kestrune::desk
