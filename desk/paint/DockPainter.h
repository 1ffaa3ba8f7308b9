// The Dock, and the trail of its last move.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"

namespace kestrune::desk {

// The Dock's parts in window coordinates. It is to scale where that is large enough to be recognised.
struct DockPlace {
    Rect panel;
    double iconSide = 0;
};
DockPlace dockPlace(const DisplayPlace& display, double scale);

void paintDock(const Canvas& canvas, const DockPlace& dock);

// A dotted arc between two places of the Dock, and the outline of the place that it left.
void paintDockTrail(const Canvas& canvas, const DockPlace& from, const DockPlace& to, double age);

} // namespace kestrune::desk
