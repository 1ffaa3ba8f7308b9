// The menu bar of a display: mark, titles, status items and the clock.
#pragma once

#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/mac/MenuBarLayout.h"
#include "desk/paint/toolkit/Canvas.h"

#include <cstddef>

namespace kestrune::desk {

void paintMenuBar(const Canvas& canvas, const MenuBarLayout& layout, const DeskPicture& picture,
                  std::size_t display);

} // namespace kestrune::desk
