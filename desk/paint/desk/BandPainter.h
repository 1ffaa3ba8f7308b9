// The guarded band along a display's bottom edge, and the mark where it held the pointer.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/toolkit/Canvas.h"

namespace kestrune::desk {

// The band in global display coordinates, as deep as it is.
Rect bandArea(const Rect& display, double bandTop);

// In window coordinates: the band as it holds, or a faint line in the place of one that does not.
void paintBand(const Canvas& canvas, const DisplayPlace& place, double bandTop, bool holds);

// In window coordinates, above the band. `location` is in global display coordinates.
void paintHeldMark(const Canvas& canvas, const DisplayPlace& place, Point location, double age);

} // namespace kestrune::desk
