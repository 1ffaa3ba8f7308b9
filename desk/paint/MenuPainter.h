// The open menu.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/MenuLayout.h"
#include "desk/paint/PanelPainter.h"

namespace kestrune::desk {

PanelStyle menuPanelStyle(const Palette& palette);

// The rows; the panel is not painted with them.
void paintMenu(const Canvas& canvas, const MenuLayout& layout, const MenuPicture& menu);

} // namespace kestrune::desk
