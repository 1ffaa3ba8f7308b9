#include "desk/paint/mac/PanelPainter.h"

#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

namespace kestrune::desk {

Rect panelExtent(const Rect& panel, const PanelStyle& style) {
    return enlargedBy(panel, 1.25 * style.shadowBlur + style.shadowDrop + 2);
}

void paintPanel(const Canvas& canvas, const Rect& panel, const PanelStyle& style) {
    const SystemColors& colors = canvas.palette.system;
    const auto paintShadow = [&](double drop, double blur, double strength) {
        const Rect shape = movedBy(panel, {0, drop});
        paintSoftShadow(canvas.context, shape, blur,
                        colors.panelShadow.withAlpha(colors.panelShadow.alpha * strength),
                        [&](cairo_t* mask) { addRoundedRectangle(mask, shape, style.cornerRadius); });
    };
    paintShadow(style.shadowDrop, style.shadowBlur, 1);
    paintShadow(1, 4, 0.35);
    fillRoundedRectangle(canvas.context, panel, style.cornerRadius, style.color);
    strokeRoundedRectangle(canvas.context, panel, style.cornerRadius, 1, colors.panelHighlight);
    // Half a point outside the panel: one pixel of the Mac's display.
    strokeRoundedRectangle(canvas.context, enlargedBy(panel, 0.5), style.cornerRadius + 0.5, 0.5,
                           colors.panelEdge);
}

} // namespace kestrune::desk
