// Windows.
#pragma once

#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/mac/SystemPicture.h"
#include "desk/paint/mac/WindowLayout.h"
#include "desk/paint/toolkit/Canvas.h"

namespace kestrune::desk {

// The key window throws a deeper shadow.
PanelStyle windowPanelStyle(const Palette& palette, const WindowPicture& shown);

// Title bar and scene; the panel is not painted with them.
void paintWindow(const Canvas& canvas, const WindowLayout& layout, const WindowPicture& shown);

// All of it, as small as it takes to fit into the middle of the area.
void paintMiniature(const Canvas& canvas, const Rect& area, const WindowPicture& shown);

} // namespace kestrune::desk
