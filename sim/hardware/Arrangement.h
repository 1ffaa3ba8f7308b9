// How macOS rearranges displays when one is plugged in or unplugged.
//
// All bounds are in global display coordinates; the first display is the primary, with its origin at (0, 0).
#pragma once

#include "sim/hardware/Display.h"

#include <cstddef>
#include <vector>

namespace kestrune::sim {

// What is left when a display is unplugged. Displays that stood on opposite sides of it move together, and
// the coordinates start anew at the display that is the primary then.
std::vector<Display> withoutDisplay(std::vector<Display> displays, std::size_t removed);

// Puts a display to the right of all others, level with the middle of its neighbour.
std::vector<Display> withDisplayAtRight(std::vector<Display> displays, Display added);

} // namespace kestrune::sim
