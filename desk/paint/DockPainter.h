// The Dock, and the trail of its last move.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/SystemPicture.h"

#include <cstddef>
#include <span>
#include <vector>

namespace kestrune::desk {

// The Dock's parts in window coordinates. It is to scale where that is large enough to be recognised.
struct DockPlace {
    Rect panel;
    double iconSide = 0;
    std::vector<Rect> icons;
    double separator = 0;    // its middle, before the tiles and the last icon
    std::vector<Rect> tiles; // of minimised windows
};
DockPlace dockPlace(const DisplayPlace& display, double scale, std::size_t tiles = 0);

// With a window in each tile.
void paintDock(const Canvas& canvas, const DockPlace& dock, std::span<const WindowPicture> windows);

// A dotted arc between two places of the Dock, and the outline of the place that it left.
void paintDockTrail(const Canvas& canvas, const DockPlace& from, const DockPlace& to, double age);

} // namespace kestrune::desk
