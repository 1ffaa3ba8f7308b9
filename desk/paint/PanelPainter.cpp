#include "desk/paint/PanelPainter.h"

#include "desk/paint/Shapes.h"
#include "desk/paint/SoftShadow.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

Rect enlargedBy(const Rect& rect, double distance) {
    return {rect.minX() - distance, rect.minY() - distance, rect.width() + 2 * distance,
            rect.height() + 2 * distance};
}

double moveInside(double start, double length, double available) {
    return std::max(PanelMargin, std::min(start, available - PanelMargin - length));
}

} // namespace

PanelStyle windowPanelStyle(const Palette& palette) {
    return {.color = palette.system.windowPanel, .cornerRadius = 10, .shadowBlur = 36, .shadowDrop = 14};
}

Rect panelExtent(const Rect& panel, const PanelStyle& style) {
    return enlargedBy(panel, 1.25 * style.shadowBlur + style.shadowDrop + 2);
}

void paintPanel(const Canvas& canvas, const Rect& panel, const PanelStyle& style) {
    const SystemColors& colors = canvas.palette.system;
    const auto paintShadow = [&](double drop, double blur, double strength) {
        const Rect shape{panel.minX(), panel.minY() + drop, panel.width(), panel.height()};
        paintSoftShadow(canvas.context, shape, blur,
                        colors.panelShadow.withAlpha(colors.panelShadow.alpha * strength),
                        [&](cairo_t* mask) { addRoundedRectangle(mask, shape, style.cornerRadius); });
    };
    paintShadow(style.shadowDrop, style.shadowBlur, 1);
    paintShadow(1, 4, 0.35);
    fillRoundedRectangle(canvas.context, panel, style.cornerRadius, style.color);
    strokeRoundedRectangle(canvas.context, panel, style.cornerRadius, 1, colors.panelHighlight);
    // Half a pixel wide outside the panel: one device pixel on a display with two for each.
    strokeRoundedRectangle(canvas.context, enlargedBy(panel, 0.5), style.cornerRadius + 0.5, 0.5,
                           colors.panelEdge);
}

Rect keptInside(const Rect& panel, Size window) {
    return {moveInside(panel.minX(), panel.width(), window.width),
            moveInside(panel.minY(), panel.height(), window.height), panel.width(), panel.height()};
}

Rect screenOrContent(const DeskLayout& layout, std::size_t display) {
    const DisplayPlace* const place = layout.place(display);
    return place ? place->screen : layout.content();
}

} // namespace kestrune::desk
