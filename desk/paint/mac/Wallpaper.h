// The wallpapers: layered hills in morning haze, drawn by rule, in a colour family for each display.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"

#include <cstddef>

namespace kestrune::desk {

// Fills the rectangle. The caller clips to the screen's corners.
void paintWallpaper(cairo_t* context, const Rect& screen, std::size_t wallpaper);

} // namespace kestrune::desk
