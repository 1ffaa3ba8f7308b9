#include "desk/paint/desk/Marks.h"

#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

// With its tip at a place, pointing away from another.
void paintArrowHead(cairo_t* context, Point tip, Point from) {
    const SavedState saved{context};
    cairo_translate(context, tip.x, tip.y);
    cairo_rotate(context, std::atan2(tip.y - from.y, tip.x - from.x));
    cairo_move_to(context, 0, 0);
    cairo_line_to(context, -11, -6.5);
    cairo_line_to(context, -8.5, 0);
    cairo_line_to(context, -11, 6.5);
    cairo_fill(context);
}

Point between(Point first, Point second, double part) {
    return {std::lerp(first.x, second.x, part), std::lerp(first.y, second.y, part)};
}

} // namespace

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
    fillGlow(canvas.context, center, 64, color.withAlpha(0.75 * strength));
    for (const double start : {10.0, 24.0, 38.0}) {
        addCircle(canvas.context, center, start + 16 * reach);
        setColor(canvas.context, rgb(0xFFFFFF, strength * (0.95 - start / 50)));
        cairo_set_line_width(canvas.context, 1.75);
        cairo_stroke(canvas.context);
    }
}

void paintDockTrail(cairo_t* context, const Rect& from, const Rect& to, double age) {
    const double strength = std::clamp(1.6 * (1 - age), 0.0, 1.0); // full at first, then fading
    if (!(strength > 0)) {
        return;
    }
    const SavedState saved{context};
    const Color white = rgb(0xFFFFFF, strength);
    constexpr double Dashes[] = {5, 4};
    cairo_set_dash(context, Dashes, 2, 0);
    strokeRoundedRectangle(context, from, from.height() / 4, 1.5, white.withAlpha(0.75 * strength));

    const Point start{centerOf(from).x, from.minY() - 4};
    const Point tip{centerOf(to).x, to.minY() - 5};
    const double lift = std::clamp(std::hypot(tip.x - start.x, tip.y - start.y) * 0.42, 40.0, 210.0);
    const Point bend{(start.x + tip.x) / 2, std::min(start.y, tip.y) - lift};
    const Point startControl = between(start, bend, 0.72);
    const Point endControl = between(tip, bend, 0.72);
    const double arrival = std::max(1.0, std::hypot(tip.x - endControl.x, tip.y - endControl.y));
    const Point end = between(tip, endControl, std::min(0.5, 17 / arrival));
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    constexpr double Dots[] = {0.01, 10};
    cairo_set_dash(context, Dots, 2, 0);
    cairo_move_to(context, start.x, start.y);
    cairo_curve_to(context, startControl.x, startControl.y, endControl.x, endControl.y, end.x, end.y);
    setColor(context, rgb(0x000000, 0.22 * strength));
    cairo_set_line_width(context, 6);
    cairo_stroke_preserve(context);
    setColor(context, white);
    cairo_set_line_width(context, 4.5);
    cairo_stroke(context);
    paintArrowHead(context, tip, endControl);
}

} // namespace kestrune::desk
