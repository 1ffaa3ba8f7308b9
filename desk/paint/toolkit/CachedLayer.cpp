#include "desk/paint/toolkit/CachedLayer.h"

#include <cmath>

namespace kestrune::desk {

double pixelsPerUnit(cairo_t* context) {
    double x = 1;
    double y = 0;
    cairo_user_to_device_distance(context, &x, &y);
    double deviceScaleX = 1;
    double deviceScaleY = 1;
    cairo_surface_get_device_scale(cairo_get_group_target(context), &deviceScaleX, &deviceScaleY);
    return std::hypot(x, y) * deviceScaleX;
}

SurfaceHandle makeLayerSurface(Size window, double pixelsPerUnit) {
    SurfaceHandle surface{cairo_image_surface_create(
        CAIRO_FORMAT_RGB24, static_cast<int>(std::ceil(window.width * pixelsPerUnit)),
        static_cast<int>(std::ceil(window.height * pixelsPerUnit)))};
    cairo_surface_set_device_scale(surface.get(), pixelsPerUnit, pixelsPerUnit);
    return surface;
}

void coverWithLayer(cairo_t* context, cairo_surface_t* layer) {
    const SavedState saved{context};
    cairo_set_source_surface(context, layer, 0, 0);
    // Pixel lies on pixel, so nothing is to be interpolated.
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    cairo_paint(context);
}

} // namespace kestrune::desk
