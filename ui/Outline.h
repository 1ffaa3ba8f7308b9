// The edge of a shape in lines and curves, so that whoever paints it paints the same.
#pragma once

#include "base/Geometry.h"
#include "ui/Scene.h"

#include <array>

namespace kestrune::ui {

// A straight line, and the cubic curve around the corner at its end.
struct OutlineSide {
    Point lineEnd;
    Point firstControl;
    Point secondControl;
    Point curveEnd;
};

// Starts where the last side ends, and is closed. In the shape's coordinates.
struct Outline {
    std::array<OutlineSide, 4> sides; // the upper one first, clockwise when y grows downwards

    Point start() const { return sides.back().curveEnd; }
};

// What is to be filled, or the middle of the line that is to be drawn. A radius that has no room is as large
// as there is room for.
Outline outlineOf(const ShapeElement& shape);

} // namespace kestrune::ui
