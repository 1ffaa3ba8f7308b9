// The menu bar of a display: mark, titles, status items and the clock.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/ImageStore.h"
#include "desk/paint/MenuBarLayout.h"

#include <cstddef>

namespace kestrune::desk {

void paintMenuBar(const Canvas& canvas, ImageStore& images, const MenuBarLayout& layout,
                  const DeskPicture& picture, std::size_t display);

} // namespace kestrune::desk
