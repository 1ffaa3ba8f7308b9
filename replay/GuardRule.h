// The guard's rule, worked out a second time without its code, for everybody in C++ who judges it.
#pragma once

#include "base/Geometry.h"

#include <algorithm>

namespace kestrune::replay {

// The depth of the band, in points, where none is stored that is greater than 0.
constexpr double UsualBlockMargin = 4;

constexpr double bandDepth(double storedMargin) { return storedMargin > 0 ? storedMargin : UsualBlockMargin; }

// Minimum edges are inside, maximum edges are not.
constexpr bool isOn(const Rect& display, Point point) {
    const bool inColumn = display.origin.x <= point.x && point.x < display.origin.x + display.size.width;
    const bool inRow = display.origin.y <= point.y && point.y < display.origin.y + display.size.height;
    return inColumn && inRow;
}

// At the bottom of a display, in global display coordinates. Where the display is too short for the whole
// band, the pointer is held below its top edge.
struct JudgedBand {
    constexpr JudgedBand(const Rect& display, double depth)
        : lowestFree(display.origin.y + display.size.height - 1 - depth),
          held(std::max(display.origin.y + 1, lowestFree)) {}

    double lowestFree; // y of a pointer that is further down is changed
    double held;       // to this one
};

} // namespace kestrune::replay
