// The guarded band along a display's bottom edge, and the mark where it held the pointer.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

namespace kestrune::desk {

// The band in window coordinates. At least a few pixels deep, so that a depth of some points stays visible at
// scale.
Rect bandArea(const DisplayPlace& place, double bandTop);

// The band as it holds.
void paintBand(const Canvas& canvas, const DisplayPlace& place, double bandTop);

// A faint outline in place of a band that does not hold.
void paintIdleBand(const Canvas& canvas, const DisplayPlace& place, double bandTop);

// `location` is in window coordinates. Paints only on the given display.
void paintHeldMark(const Canvas& canvas, const DisplayPlace& place, Point location, double age);

} // namespace kestrune::desk
