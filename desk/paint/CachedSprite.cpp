#include "desk/paint/CachedSprite.h"

#include <cmath>

namespace kestrune::desk {

Rect onDevicePixels(const Rect& area, double pixelsPerUnit) {
    const double left = std::floor(area.minX() * pixelsPerUnit) / pixelsPerUnit;
    const double top = std::floor(area.minY() * pixelsPerUnit) / pixelsPerUnit;
    return {left, top, std::ceil(area.maxX() * pixelsPerUnit) / pixelsPerUnit - left,
            std::ceil(area.maxY() * pixelsPerUnit) / pixelsPerUnit - top};
}

SurfaceHandle makeSpriteSurface(Size area, double pixelsPerUnit) {
    SurfaceHandle surface{cairo_image_surface_create(
        CAIRO_FORMAT_ARGB32, static_cast<int>(std::lround(area.width * pixelsPerUnit)),
        static_cast<int>(std::lround(area.height * pixelsPerUnit)))};
    cairo_surface_set_device_scale(surface.get(), pixelsPerUnit, pixelsPerUnit);
    return surface;
}

void paintSprite(cairo_t* context, cairo_surface_t* sprite, Point topLeft) {
    const SavedState saved{context};
    cairo_set_source_surface(context, sprite, topLeft.x, topLeft.y);
    // Pixel lies on pixel, so nothing is to be interpolated.
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    cairo_paint(context);
}

} // namespace kestrune::desk
