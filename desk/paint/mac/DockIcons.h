// The application icons in the Dock: plain glyphs on coloured rounded squares.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"

#include <cstddef>

namespace kestrune::desk {

inline constexpr std::size_t DockIconCount = 8;

// Paints the icon into the square; `icon` is less than DockIconCount.
void paintDockIcon(cairo_t* context, std::size_t icon, const Rect& square);

} // namespace kestrune::desk
