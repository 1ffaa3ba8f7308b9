#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrune::desk {
namespace {

constexpr double QuarterTurn = std::numbers::pi / 2;

void addColorStop(cairo_pattern_t* pattern, double offset, const Color& color) {
    cairo_pattern_add_color_stop_rgba(pattern, offset, color.red, color.green, color.blue, color.alpha);
}

} // namespace

void setColor(cairo_t* context, const Color& color) {
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

void addRoundedRectangle(cairo_t* context, const Rect& rect, double radius) {
    const double corner = std::clamp(radius, 0.0, std::min(rect.width(), rect.height()) / 2);
    cairo_new_sub_path(context);
    cairo_arc(context, rect.maxX() - corner, rect.minY() + corner, corner, -QuarterTurn, 0);
    cairo_arc(context, rect.maxX() - corner, rect.maxY() - corner, corner, 0, QuarterTurn);
    cairo_arc(context, rect.minX() + corner, rect.maxY() - corner, corner, QuarterTurn, 2 * QuarterTurn);
    cairo_arc(context, rect.minX() + corner, rect.minY() + corner, corner, 2 * QuarterTurn, 3 * QuarterTurn);
    cairo_close_path(context);
}

void fillRoundedRectangle(cairo_t* context, const Rect& rect, double radius, const Color& color) {
    addRoundedRectangle(context, rect, radius);
    setColor(context, color);
    cairo_fill(context);
}

void strokeRoundedRectangle(cairo_t* context, const Rect& rect, double radius, double lineWidth,
                            const Color& color) {
    const double inset = lineWidth / 2;
    if (rect.width() <= lineWidth || rect.height() <= lineWidth) {
        return;
    }
    addRoundedRectangle(
        context,
        {rect.minX() + inset, rect.minY() + inset, rect.width() - lineWidth, rect.height() - lineWidth},
        radius - inset);
    cairo_set_line_width(context, lineWidth);
    setColor(context, color);
    cairo_stroke(context);
}

void addCircle(cairo_t* context, Point center, double radius) {
    cairo_new_sub_path(context);
    cairo_arc(context, center.x, center.y, radius, 0, 4 * QuarterTurn);
    cairo_close_path(context);
}

void fillCircle(cairo_t* context, Point center, double radius, const Color& color) {
    addCircle(context, center, radius);
    setColor(context, color);
    cairo_fill(context);
}

void fillWithVerticalGradient(cairo_t* context, double top, double bottom,
                              std::initializer_list<Color> colors) {
    const PatternHandle gradient{cairo_pattern_create_linear(0, top, 0, bottom)};
    const double steps = std::max(1.0, static_cast<double>(colors.size()) - 1);
    double index = 0;
    for (const Color& color : colors) {
        addColorStop(gradient.get(), index / steps, color);
        index += 1;
    }
    cairo_set_source(context, gradient.get());
    cairo_fill(context);
}

void fillWithGlow(cairo_t* context, Point center, double radius, const Color& color) {
    const PatternHandle glow{cairo_pattern_create_radial(center.x, center.y, 0, center.x, center.y, radius)};
    // Stops along a bell curve: a straight ramp shows a visible rim.
    constexpr int Stops = 8;
    for (int stop = 0; stop <= Stops; ++stop) {
        const double distance = static_cast<double>(stop) / Stops;
        const double strength = std::pow(1 - distance * distance, 3);
        addColorStop(glow.get(), distance, color.withAlpha(color.alpha * strength));
    }
    cairo_set_source(context, glow.get());
    cairo_fill(context);
}

} // namespace kestrune::desk
