#include "desk/paint/toolkit/SoftShadow.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace kestrune::desk {
namespace {

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
