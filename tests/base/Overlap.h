// Whether rectangles have room in common.
#pragma once

#include "base/Geometry.h"

namespace kestrune {

// More than an edge.
inline bool overlap(const Rect& first, const Rect& second) {
    return first.minX() < second.maxX() && second.minX() < first.maxX() && first.minY() < second.maxY() &&
           second.minY() < first.maxY();
}

} // namespace kestrune
