#include "desk/paint/toolkit/Shapes.h"

#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace kestrune::desk {
namespace {

constexpr double QuarterTurn = std::numbers::pi / 2;

void addColorStop(cairo_pattern_t* pattern, double offset, const Color& color) {
    cairo_pattern_add_color_stop_rgba(pattern, offset, color.red, color.green, color.blue, color.alpha);
}

// Replaces each of `count` samples, `step` bytes apart, by the mean of the samples within `radius`. Samples
// outside the row count as 0.
void averageRow(unsigned char* samples, std::size_t count, std::size_t step, std::size_t radius,
                std::vector<unsigned char>& copy) {
    copy.resize(count);
    for (std::size_t index = 0; index < count; ++index) {
        copy[index] = samples[index * step];
    }
    const unsigned divisor = static_cast<unsigned>(2 * radius + 1);
    unsigned sum = 0;
    for (std::size_t index = 0; index < std::min(radius, count); ++index) {
        sum += copy[index];
    }
    for (std::size_t index = 0; index < count; ++index) {
        if (index + radius < count) {
            sum += copy[index + radius];
        }
        samples[index * step] = static_cast<unsigned char>((sum + divisor / 2) / divisor);
        if (index >= radius) {
            sum -= copy[index - radius];
        }
    }
}

// Three box averages in each direction come close to a bell curve.
void blurMask(cairo_surface_t* mask, std::size_t radius) {
    cairo_surface_flush(mask);
    unsigned char* const samples = cairo_image_surface_get_data(mask);
    const auto width = static_cast<std::size_t>(cairo_image_surface_get_width(mask));
    const auto height = static_cast<std::size_t>(cairo_image_surface_get_height(mask));
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(mask));
    std::vector<unsigned char> copy;
    for (int pass = 0; pass < 3; ++pass) {
        for (std::size_t row = 0; row < height; ++row) {
            averageRow(samples + row * stride, width, 1, radius, copy);
        }
        for (std::size_t column = 0; column < width; ++column) {
            averageRow(samples + column, height, stride, radius, copy);
        }
    }
    cairo_surface_mark_dirty(mask);
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
    addRoundedRectangle(context, enlargedBy(rect, -inset), radius - inset);
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

void strokeRound(cairo_t* context, double lineWidth) {
    const SavedState saved{context};
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_width(context, lineWidth);
    cairo_stroke(context);
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

void fillGlow(cairo_t* context, Point center, double radius, const Color& color) {
    const PatternHandle glow{cairo_pattern_create_radial(center.x, center.y, 0, center.x, center.y, radius)};
    // Stops along a bell curve: a straight ramp shows a visible rim.
    constexpr int Stops = 8;
    for (int stop = 0; stop <= Stops; ++stop) {
        const double distance = static_cast<double>(stop) / Stops;
        const double strength = std::pow(1 - distance * distance, 3);
        addColorStop(glow.get(), distance, color.withAlpha(color.alpha * strength));
    }
    addCircle(context, center, radius);
    cairo_set_source(context, glow.get());
    cairo_fill(context);
}

void paintSoftShadow(cairo_t* context, const Rect& extent, double blur, const Color& color,
                     const std::function<void(cairo_t*)>& addPath) {
    // A wide blur has no fine detail, so a coarser mask, enlarged smoothly, gives the same picture sooner.
    const double resolution = 1 / std::max(1.0, std::floor(blur / 6));
    const double radius = std::max(1.0, std::round(blur * resolution / 3));
    // Three averages reach three radii beyond the shape; one sample more keeps the border empty.
    const double reach = (3 * radius + 1) / resolution;
    const double left = std::floor(extent.minX() - reach);
    const double top = std::floor(extent.minY() - reach);
    const int width = static_cast<int>(std::ceil((extent.maxX() + reach - left) * resolution));
    const int height = static_cast<int>(std::ceil((extent.maxY() + reach - top) * resolution));
    const SurfaceHandle mask{cairo_image_surface_create(CAIRO_FORMAT_A8, width, height)};
    if (cairo_surface_status(mask.get()) != CAIRO_STATUS_SUCCESS) {
        return;
    }
    cairo_surface_set_device_scale(mask.get(), resolution, resolution);
    const ContextHandle maskContext{cairo_create(mask.get())};
    cairo_translate(maskContext.get(), -left, -top);
    addPath(maskContext.get());
    cairo_fill(maskContext.get());
    blurMask(mask.get(), static_cast<std::size_t>(radius));
    setColor(context, color);
    cairo_mask_surface(context, mask.get(), left, top);
}

} // namespace kestrune::desk
