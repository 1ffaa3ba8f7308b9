#include "desk/paint/desk/BandPainter.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>

namespace kestrune::desk {

Rect bandArea(const Rect& display, double bandTop) {
    const double depth = std::clamp(display.maxY() - bandTop, 0.0, display.height());
    return {display.minX(), display.maxY() - depth, display.width(), depth};
}

void paintBand(const Canvas& canvas, const DisplayPlace& place, double bandTop, bool holds) {
    const Rect area = place.toWindow(bandArea(place.bounds, bandTop));
    const Rect top{area.minX(), area.minY(), area.width(), std::min(1.0, area.height())};
    if (holds) {
        fillRoundedRectangle(canvas.context, area, 0, canvas.palette.band.withAlpha(0.62));
        fillRoundedRectangle(canvas.context, top, 0, canvas.palette.band);
        return;
    }
    const SavedState saved{canvas.context};
    constexpr double Dashes[] = {4, 4};
    cairo_set_dash(canvas.context, Dashes, 2, 0);
    cairo_set_line_width(canvas.context, top.height());
    cairo_move_to(canvas.context, top.minX(), top.minY() + top.height() / 2);
    cairo_line_to(canvas.context, top.maxX(), top.minY() + top.height() / 2);
    setColor(canvas.context, rgb(0xFFFFFF, 0.34));
    cairo_stroke(canvas.context);
}

void paintHeldMark(const Canvas& canvas, const DisplayPlace& place, Point location, double age) {
    const double strength = 1 - std::clamp(age, 0.0, 1.0);
    if (!(strength > 0)) {
        return;
    }
    const SavedState saved{canvas.context};
    const Point center = place.toWindow(location);
    const Rect& screen = place.screen;
    cairo_rectangle(canvas.context, screen.minX(), screen.minY(), screen.width(), center.y - screen.minY());
    cairo_clip(canvas.context);
    const Color& color = canvas.palette.band;
    const double reach = 1 - strength * strength;
    addCircle(canvas.context, center, 64);
    fillWithGlow(canvas.context, center, 64, color.withAlpha(0.75 * strength));
    for (const double start : {10.0, 24.0, 38.0}) {
        addCircle(canvas.context, center, start + 16 * reach);
        setColor(canvas.context, rgb(0xFFFFFF, strength * (0.95 - start / 50)));
        cairo_set_line_width(canvas.context, 1.75);
        cairo_stroke(canvas.context);
    }
}

} // namespace kestrune::desk
