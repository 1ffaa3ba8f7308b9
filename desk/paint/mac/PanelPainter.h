// The floating panels that menus, tool tips, dialogs and windows stand on.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"

namespace kestrune::desk {

struct PanelStyle {
    Color color;
    double cornerRadius = 6;
    double shadowBlur = 20;
    double shadowDrop = 6;

    friend bool operator==(const PanelStyle&, const PanelStyle&) = default;
};

// All that the panel and its shadow cover.
Rect panelExtent(const Rect& panel, const PanelStyle& style);

// Shadow, panel and the hairlines around it.
void paintPanel(const Canvas& canvas, const Rect& panel, const PanelStyle& style);

} // namespace kestrune::desk
