// The few shapes that everything on the desk is made of. Coordinates and lengths are in the context's user
// units.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/CairoObjects.h"

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

// Fills the context's path, and forgets it, with colours spaced evenly from top to bottom.
void fillWithVerticalGradient(cairo_t* context, double top, double bottom,
                              std::initializer_list<Color> colors);

// Fills the context's path, and forgets it, with a glow that fades from `color` at the centre to nothing at
// `radius`.
void fillWithGlow(cairo_t* context, Point center, double radius, const Color& color);

} // namespace kestrune::desk
