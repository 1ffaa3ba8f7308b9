// The pointer: an arrow with its hot spot at the tip. Coordinates are the context's.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"

namespace kestrune::desk {

// All that the arrow and its shadow cover.
Rect pointerExtent(Point hotSpot);

void paintPointer(cairo_t* context, Point hotSpot);

} // namespace kestrune::desk
