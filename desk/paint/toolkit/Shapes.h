// The few shapes that everything on the desk is made of, and blurred shadows, which Cairo does not have.
// Coordinates and lengths are in the context's user
// units.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/Color.h"

#include <functional>
#include <initializer_list>

namespace kestrune::desk {

void setColor(cairo_t* context, const Color& color);

// A path; a radius larger than half the shorter side gives a pill.
void addRoundedRectangle(cairo_t* context, const Rect& rect, double radius);

void fillRoundedRectangle(cairo_t* context, const Rect& rect, double radius, const Color& color);

// The line runs inside the rectangle's edge.
void strokeRoundedRectangle(cairo_t* context, const Rect& rect, double radius, double lineWidth,
                            const Color& color);

void addCircle(cairo_t* context, Point center, double radius);
void fillCircle(cairo_t* context, Point center, double radius, const Color& color);

// Draws the context's path, and forgets it, as a line with round ends and corners in the context's colour.
void strokeRound(cairo_t* context, double lineWidth);

// Fills the context's path, and forgets it, with colours spaced evenly from top to bottom.
void fillWithVerticalGradient(cairo_t* context, double top, double bottom,
                              std::initializer_list<Color> colors);

// A circle that fades from `color` at the centre to nothing at `radius`.
void fillGlow(cairo_t* context, Point center, double radius, const Color& color);

// Paints the shape that `addPath` adds, blurred and in one colour. `extent` encloses the shape; `blur` is the
// distance in user units over which the shadow fades on either side of the shape's edge.
void paintSoftShadow(cairo_t* context, const Rect& extent, double blur, const Color& color,
                     const std::function<void(cairo_t*)>& addPath);

} // namespace kestrune::desk
