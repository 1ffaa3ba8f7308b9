#include "sim/hardware/PointerConfinement.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrune::sim {

namespace {

constexpr double StepsPerPoint = 256;

double snapToGrid(double value) { return std::nearbyint(value * StepsPerPoint) / StepsPerPoint; }

// The grid position nearest to `value` in [minimum, maximum); `minimum` itself when no grid line is in there.
double clampToGrid(double value, double minimum, double maximum) {
    const double lowest = std::ceil(minimum * StepsPerPoint) / StepsPerPoint;
    const double highest = (std::ceil(maximum * StepsPerPoint) - 1) / StepsPerPoint;
    return lowest <= highest ? std::clamp(value, lowest, highest) : minimum;
}

Point clampToDisplay(Point point, const Rect& bounds) {
    return {clampToGrid(point.x, bounds.minX(), bounds.maxX()),
            clampToGrid(point.y, bounds.minY(), bounds.maxY())};
}

const Rect* boundsContaining(const std::vector<Display>& displays, Point point) {
    for (const Display& display : displays) {
        if (display.bounds.contains(point)) {
            return &display.bounds;
        }
    }
    return nullptr;
}

Point nearestPoint(const std::vector<Display>& displays, Point wanted) {
    Point nearest = clampToDisplay(wanted, displays.front().bounds);
    double smallest = std::numeric_limits<double>::infinity();
    for (const Display& display : displays) {
        if (display.bounds.isEmpty()) {
            continue;
        }
        const Point candidate = clampToDisplay(wanted, display.bounds);
        const double distance = std::hypot(candidate.x - wanted.x, candidate.y - wanted.y);
        if (distance < smallest) {
            smallest = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace

Point confinePointer(const std::vector<Display>& displays, Point from, Point wanted) {
    if (displays.empty() || std::isnan(wanted.x) || std::isnan(wanted.y)) {
        return from;
    }
    const Point target{snapToGrid(wanted.x), snapToGrid(wanted.y)};
    if (const Rect* there = boundsContaining(displays, target)) {
        return clampToDisplay(target, *there);
    }
    const Rect* current = boundsContaining(displays, from);
    if (current == nullptr) {
        return nearestPoint(displays, target);
    }
    const Rect* sideways = boundsContaining(displays, {target.x, from.y});
    if (sideways != nullptr) {
        return clampToDisplay(target, *sideways);
    }
    const Point atSideEdge = clampToDisplay({target.x, from.y}, *current);
    const Rect* along = boundsContaining(displays, {atSideEdge.x, target.y});
    return clampToDisplay({atSideEdge.x, target.y}, along != nullptr ? *along : *current);
}

} // namespace kestrune::sim
