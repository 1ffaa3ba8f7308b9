#include "desk/paint/BandPainter.h"

#include "desk/paint/Shapes.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

constexpr double SmallestDepth = 5;
constexpr double GlowHeight = 22;

void clipToScreen(cairo_t* context, const DisplayPlace& place) {
    addRoundedRectangle(context, place.screen, place.screenCornerRadius);
    cairo_clip(context);
}

void paintHatching(cairo_t* context, const Rect& area, const Color& color) {
    const SavedState saved{context};
    cairo_rectangle(context, area.minX(), area.minY(), area.width(), area.height());
    cairo_clip(context);
    constexpr double Spacing = 7;
    for (double x = area.minX() - area.height(); x < area.maxX(); x += Spacing) {
        cairo_move_to(context, x, area.maxY());
        cairo_line_to(context, x + area.height(), area.minY());
    }
    setColor(context, color);
    cairo_set_line_width(context, 1.6);
    cairo_stroke(context);
}

} // namespace

Rect bandArea(const DisplayPlace& place, double bandTop) {
    const double pixelsPerPoint = place.screen.height() / place.bounds.height();
    const double exactDepth = (place.bounds.maxY() - bandTop) * pixelsPerPoint;
    const double depth =
        std::clamp(exactDepth, std::min(SmallestDepth, place.screen.height()), place.screen.height());
    return {place.screen.minX(), place.screen.maxY() - depth, place.screen.width(), depth};
}

void paintBand(const Canvas& canvas, const DisplayPlace& place, double bandTop) {
    const SavedState saved{canvas.context};
    clipToScreen(canvas.context, place);
    const Rect area = bandArea(place, bandTop);
    const Color& color = canvas.palette.band;

    const double glowHeight = std::min(GlowHeight, area.minY() - place.screen.minY());
    if (glowHeight > 0) {
        const double glowTop = area.minY() - glowHeight;
        cairo_rectangle(canvas.context, area.minX(), glowTop, area.width(), glowHeight);
        fillWithVerticalGradient(
            canvas.context, glowTop, area.minY(),
            {color.withAlpha(0), color.withAlpha(0.07), color.withAlpha(0.22), color.withAlpha(0.5)});
    }
    fillRoundedRectangle(canvas.context, area, 0, color.withAlpha(0.92));
    paintHatching(canvas.context, area, rgb(0xFFFFFF, 0.30));
}

void paintIdleBand(const Canvas& canvas, const DisplayPlace& place, double bandTop) {
    const Rect area = bandArea(place, bandTop);
    const SavedState saved{canvas.context};
    clipToScreen(canvas.context, place);
    constexpr double Dashes[] = {4, 4};
    cairo_set_dash(canvas.context, Dashes, 2, 0);
    cairo_set_line_width(canvas.context, 1);
    cairo_move_to(canvas.context, area.minX(), area.minY() + 0.5);
    cairo_line_to(canvas.context, area.maxX(), area.minY() + 0.5);
    setColor(canvas.context, rgb(0xFFFFFF, 0.30));
    cairo_stroke(canvas.context);
}

void paintHeldMark(const Canvas& canvas, const DisplayPlace& place, Point location, double age) {
    const double strength = 1 - std::clamp(age, 0.0, 1.0);
    if (!(strength > 0)) {
        return;
    }
    const SavedState saved{canvas.context};
    clipToScreen(canvas.context, place);
    const Color& color = canvas.palette.band;
    const double reach = 1 - strength * strength;
    addCircle(canvas.context, location, 64);
    fillWithGlow(canvas.context, location, 64, color.withAlpha(0.75 * strength));
    for (const double start : {10.0, 24.0, 38.0}) {
        addCircle(canvas.context, location, start + 16 * reach);
        setColor(canvas.context, rgb(0xFFFFFF, strength * (0.95 - start / 50)));
        cairo_set_line_width(canvas.context, 1.75);
        cairo_stroke(canvas.context);
    }
}

} // namespace kestrune::desk
