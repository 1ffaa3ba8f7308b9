// Points, sizes and rectangles with the rules of the platform's CGPoint, CGSize and CGRect.
//
// All values are in points, as 64-bit floating-point numbers. A rectangle does not know its coordinate space:
// each declaration that uses one says whether y grows downwards (global display coordinates) or upwards
// (AppKit screen coordinates).
//
// Source of the rules: developer.apple.com, CGRectContainsPoint, CGRectStandardize, CGRectGetWidth,
// CGRectGetMinY.
#pragma once

#include <limits>

namespace kestrune {

struct Point {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

// The edges of a standardized rectangle.
struct Edges {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;

    // Minimum edges are inside, maximum edges are not. Null and empty rectangles need no test of their own:
    // no number lies in a half-open interval that is empty or starts at infinity. A NaN anywhere is not
    // contained.
    constexpr bool contains(Point point) const {
        return point.x >= minX && point.x < maxX && point.y >= minY && point.y < maxY;
    }
};

struct Size {
    double width = 0;
    double height = 0;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

// Accessors answer for the standardized rectangle: a negative width or height counts from the other edge.
struct Rect {
    Point origin;
    Size size;

    constexpr Rect() = default;
    constexpr Rect(double x, double y, double width, double height) : origin{x, y}, size{width, height} {}

    // The rectangle that stands for "no rectangle"; it contains nothing.
    static constexpr Rect null() {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return {infinity, infinity, 0, 0};
    }

    constexpr double minX() const { return size.width < 0 ? origin.x + size.width : origin.x; }
    constexpr double maxX() const { return size.width < 0 ? origin.x : origin.x + size.width; }
    constexpr double minY() const { return size.height < 0 ? origin.y + size.height : origin.y; }
    constexpr double maxY() const { return size.height < 0 ? origin.y : origin.y + size.height; }
    constexpr double width() const { return size.width < 0 ? -size.width : size.width; }
    constexpr double height() const { return size.height < 0 ? -size.height : size.height; }

    constexpr bool isNull() const {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return origin.x == infinity || origin.y == infinity;
    }

    // True for the null rectangle and for one without width or height.
    constexpr bool isEmpty() const { return isNull() || size.width == 0 || size.height == 0; }

    constexpr Rect standardized() const {
        return isNull() ? null() : Rect{minX(), minY(), width(), height()};
    }

    // Keep them to test many points; they do not change with the point.
    constexpr Edges edges() const { return {minX(), minY(), maxX(), maxY()}; }

    constexpr bool contains(Point point) const { return edges().contains(point); }

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

} // namespace kestrune
