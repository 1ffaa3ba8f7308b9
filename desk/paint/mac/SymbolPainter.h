// Our own drawings of the symbols that applications name; they stand in for the platform's.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/Color.h"
#include "ui/Scene.h"

namespace kestrune::desk {

// No size for a name that there is no symbol for.
Size symbolSize(const ui::StyledSymbol& symbol);

// In the middle of the frame.
void paintSymbol(cairo_t* context, const ui::StyledSymbol& symbol, const Rect& frame, const Color& color);

} // namespace kestrune::desk
