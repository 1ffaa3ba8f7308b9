// Rectangles next to, around and inside each other. None of these takes a null rectangle.
#pragma once

#include "base/Geometry.h"

#include <algorithm>

namespace kestrune::desk {

inline Point centerOf(const Rect& rect) {
    return {rect.minX() + rect.width() / 2, rect.minY() + rect.height() / 2};
}

inline Rect insetBy(const Rect& rect, double horizontal, double vertical) {
    return {rect.minX() + horizontal, rect.minY() + vertical, rect.width() - 2 * horizontal,
            rect.height() - 2 * vertical};
}

// With every edge moved outwards, or inwards by a negative distance.
inline Rect enlargedBy(const Rect& rect, double distance) { return insetBy(rect, -distance, -distance); }

inline Rect movedBy(const Rect& rect, Point way) {
    return {rect.minX() + way.x, rect.minY() + way.y, rect.width(), rect.height()};
}

inline Rect unionOf(const Rect& first, const Rect& second) {
    const double left = std::min(first.minX(), second.minX());
    const double top = std::min(first.minY(), second.minY());
    return {left, top, std::max(first.maxX(), second.maxX()) - left,
            std::max(first.maxY(), second.maxY()) - top};
}

inline bool doOverlap(const Rect& first, const Rect& second) {
    return first.minX() < second.maxX() && second.minX() < first.maxX() && first.minY() < second.maxY() &&
           second.minY() < first.maxY();
}

// What two rectangles that overlap have in common.
inline Rect overlapOf(const Rect& first, const Rect& second) {
    const double left = std::max(first.minX(), second.minX());
    const double top = std::max(first.minY(), second.minY());
    return {left, top, std::min(first.maxX(), second.maxX()) - left,
            std::min(first.maxY(), second.maxY()) - top};
}

} // namespace kestrune::desk
