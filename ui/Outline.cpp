#include "ui/Outline.h"

#include <algorithm>
#include <numbers>

namespace kestrune::ui {

namespace {

// How far from the corner its curve begins and where its control points lie, on the two edges; in radii.
struct Corner {
    double reach;
    double control;
};

// The cubic curve next to a quarter circle.
constexpr Corner Circular{1, 1 - 4 * (std::numbers::sqrt2 - 1) / 3};

// Begins half as far again from the corner, and has its middle where a quarter circle's is: 1 - sqrt(1/2)
// radii from both edges, which with such control points is (reach + 3 control) / 8.
constexpr double ContinuousReach = 1.5;
constexpr Corner Continuous{ContinuousReach, (8 * (1 - std::numbers::sqrt2 / 2) - ContinuousReach) / 3};

// A step along an edge.
struct Direction {
    double x;
    double y;

    Point from(Point origin, double distance) const {
        return {origin.x + distance * x, origin.y + distance * y};
    }
};

constexpr Direction Right{1, 0};
constexpr Direction Down{0, 1};
constexpr Direction Left{-1, 0};
constexpr Direction Up{0, -1};

} // namespace

Outline outlineOf(const ShapeElement& shape) {
    const double inset = shape.lineWidth / 2;
    const Edges edges{shape.frame.minX() + inset, shape.frame.minY() + inset, shape.frame.maxX() - inset,
                      shape.frame.maxY() - inset};
    const Corner& corner = shape.cornerStyle == CornerStyle::continuous ? Continuous : Circular;
    const double room = std::max(0.0, std::min(edges.maxX - edges.minX, edges.maxY - edges.minY) / 2);
    const double radius = std::clamp(shape.cornerRadius - inset, 0.0, room / corner.reach);
    const auto side = [&](Direction along, Point end, Direction onwards) {
        return OutlineSide{along.from(end, -radius * corner.reach), along.from(end, -radius * corner.control),
                           onwards.from(end, radius * corner.control),
                           onwards.from(end, radius * corner.reach)};
    };
    return {{side(Right, {edges.maxX, edges.minY}, Down), side(Down, {edges.maxX, edges.maxY}, Left),
             side(Left, {edges.minX, edges.maxY}, Up), side(Up, {edges.minX, edges.minY}, Right)}};
}

} // namespace kestrune::ui
