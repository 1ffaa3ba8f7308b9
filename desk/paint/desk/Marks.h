// What the desk marks on the displays: the guarded band along a bottom edge, the place where it held the
// pointer, and the way of the Dock.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/mac/Canvas.h"

namespace kestrune::desk {

// The band in global display coordinates, as deep as it is.
Rect bandArea(const Rect& display, double bandTop);

// In window coordinates: the band as it holds, or a faint line in the place of one that does not.
void paintBand(const Canvas& canvas, const DisplayPlace& place, double bandTop, bool holds);

// In window coordinates, above the band. `location` is in global display coordinates.
void paintHeldMark(const Canvas& canvas, const DisplayPlace& place, Point location, double age);

// A dotted arc between two places of the Dock's panel, in window coordinates, and the outline of the place
// that it left.
void paintDockTrail(cairo_t* context, const Rect& from, const Rect& to, double age);

} // namespace kestrune::desk
