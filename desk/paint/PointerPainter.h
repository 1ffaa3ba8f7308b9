// The pointer: an arrow of constant size with its hot spot at the tip.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/CairoObjects.h"

namespace kestrune::desk {

// `hotSpot` is in window coordinates.
void paintPointer(cairo_t* context, Point hotSpot);

} // namespace kestrune::desk
