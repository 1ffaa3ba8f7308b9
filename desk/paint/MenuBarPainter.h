// A display's menu bar.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/ImageStore.h"
#include "desk/paint/MenuBarLayout.h"

#include <cstddef>

namespace kestrune::desk {

// `display` is the index of the menu bar's display, and decides whether an open menu is one of its own.
void paintMenuBar(const Canvas& canvas, ImageStore& images, const DisplayPlace& place,
                  const MenuBarLayout& layout, const DeskPicture& picture, std::size_t display);

} // namespace kestrune::desk
