// The floating panels that menus, tool tips, dialogs and windows stand on.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"

#include <cstddef>

namespace kestrune::desk {

struct PanelStyle {
    Color color;
    double cornerRadius = 6;
    double shadowBlur = 20; // in logical pixels
    double shadowDrop = 6;

    friend bool operator==(const PanelStyle&, const PanelStyle&) = default;
};

// Of dialogs and other windows.
PanelStyle windowPanelStyle(const Palette& palette);

// All that the panel and its shadow cover.
Rect panelExtent(const Rect& panel, const PanelStyle& style);

// Shadow, panel and the hairlines around it.
void paintPanel(const Canvas& canvas, const Rect& panel, const PanelStyle& style);

// The panel, moved by as little as it takes to stand a few pixels inside the window. One that is too large
// keeps its upper left corner inside.
Rect keptInside(const Rect& panel, Size window);

// Where a window is centred: the display's screen, or the middle of the desk when that display is not drawn.
Rect screenOrContent(const DeskLayout& layout, std::size_t display);

// The room between a panel and the window's edges.
inline constexpr double PanelMargin = 8;

} // namespace kestrune::desk
