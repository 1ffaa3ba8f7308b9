// Blurred shadows, which Cairo does not have.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/CairoObjects.h"

#include <functional>

namespace kestrune::desk {

// Paints the shape that `addPath` adds, blurred and in one colour. `extent` encloses the shape; `blur` is the
// distance in user units over which the shadow fades on either side of the shape's edge.
void paintSoftShadow(cairo_t* context, const Rect& extent, double blur, const Color& color,
                     const std::function<void(cairo_t*)>& addPath);

} // namespace kestrune::desk
