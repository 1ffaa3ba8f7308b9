#include "desk/paint/toolkit/Surface.h"

#include <cmath>
#include <utility>

namespace kestrune::desk {
namespace {

// Device pixels of a side; absent when out of range.
std::optional<int> deviceLength(double length, double scale) {
    constexpr double LongestSide = 16384;
    const double pixels = std::ceil(length * scale);
    if (!(scale > 0 && pixels >= 1 && pixels <= LongestSide)) {
        return std::nullopt;
    }
    return static_cast<int>(pixels);
}

} // namespace

std::optional<Surface> Surface::create(Size window, double scale) {
    const std::optional<int> width = deviceLength(window.width, scale);
    const std::optional<int> height = deviceLength(window.height, scale);
    if (!width || !height) {
        return std::nullopt;
    }
    SurfaceHandle surface{cairo_image_surface_create(CAIRO_FORMAT_ARGB32, *width, *height)};
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        return std::nullopt;
    }
    cairo_surface_set_device_scale(surface.get(), scale, scale);
    ContextHandle context{cairo_create(surface.get())};
    return Surface{std::move(surface), std::move(context)};
}

Surface::Surface(SurfaceHandle surface, ContextHandle context)
    : surface_(std::move(surface)), context_(std::move(context)) {}

int Surface::pixelWidth() const { return cairo_image_surface_get_width(surface_.get()); }

int Surface::pixelHeight() const { return cairo_image_surface_get_height(surface_.get()); }

int Surface::stride() const { return cairo_image_surface_get_stride(surface_.get()); }

std::span<const std::byte> Surface::pixels() const {
    cairo_surface_flush(surface_.get());
    const unsigned char* const data = cairo_image_surface_get_data(surface_.get());
    return std::as_bytes(
        std::span{data, static_cast<std::size_t>(stride()) * static_cast<std::size_t>(pixelHeight())});
}

std::optional<PaintError> Surface::writePng(const std::string& path) const {
    cairo_surface_flush(surface_.get());
    const cairo_status_t status = cairo_surface_write_to_png(surface_.get(), path.c_str());
    if (status != CAIRO_STATUS_SUCCESS) {
        return PaintError{path + ": " + cairo_status_to_string(status)};
    }
    return std::nullopt;
}

} // namespace kestrune::desk
