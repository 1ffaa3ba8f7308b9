// The open menu.
#pragma once

#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/mac/MenuLayout.h"
#include "desk/paint/toolkit/Canvas.h"

namespace kestrune::desk {

PanelStyle menuPanelStyle(const Palette& palette);

// The rows; the panel is not painted with them.
void paintMenu(const Canvas& canvas, const MenuLayout& layout, const MenuPicture& menu);

} // namespace kestrune::desk
