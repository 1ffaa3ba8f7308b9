// Where the hardware pointer can be.
//
// Source: positions lie on a grid of 1/256 point and run from a display's minimum edges to 1/256 before its
// maximum edges (docs/MAC_FACTS.md, "Pointer positions").
#pragma once

#include "base/Geometry.h"
#include "sim/hardware/Display.h"

#include <vector>

namespace kestrune::sim {

// The place on the displays that a pointer at `from` reaches when the hardware moves it to `wanted` (global
// display coordinates): there when a display is there, otherwise sideways as far as displays reach and then
// along the edge. A pointer that is on no display any more jumps to the nearest one. Without displays,
// and when `wanted` is not a number, it stays where it is.
Point confinePointer(const std::vector<Display>& displays, Point from, Point wanted);

} // namespace kestrune::sim
