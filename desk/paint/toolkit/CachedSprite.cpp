#include "desk/paint/toolkit/CachedSprite.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {

SpritePlace spritePlace(cairo_t* context, const Rect& area) {
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    SpritePlace place;
    SpriteGrid& grid = place.grid;
    double deviceScaleY = 1;
    cairo_surface_get_device_scale(cairo_get_group_target(context), &grid.deviceScale, &deviceScaleY);
    grid.scale = matrix.xx * grid.deviceScale;
    const Point start{area.minX() * grid.scale + matrix.x0 * grid.deviceScale,
                      area.minY() * grid.scale + matrix.y0 * grid.deviceScale};
    place.corner = {std::floor(start.x), std::floor(start.y)};
    grid.phase = {start.x - place.corner.x, start.y - place.corner.y};
    grid.pixels = {std::ceil(grid.phase.x + area.width() * grid.scale),
                   std::ceil(grid.phase.y + area.height() * grid.scale)};
    return place;
}

ContextHandle makeSprite(const SpriteGrid& grid, Point areaOrigin, cairo_format_t format) {
    const SurfaceHandle surface{cairo_image_surface_create(format, static_cast<int>(grid.pixels.width),
                                                           static_cast<int>(grid.pixels.height))};
    cairo_surface_set_device_scale(surface.get(), grid.deviceScale, grid.deviceScale);
    ContextHandle context{cairo_create(surface.get())};
    cairo_translate(context.get(), grid.phase.x / grid.deviceScale, grid.phase.y / grid.deviceScale);
    cairo_scale(context.get(), grid.scale / grid.deviceScale, grid.scale / grid.deviceScale);
    cairo_translate(context.get(), -areaOrigin.x, -areaOrigin.y);
    return context;
}

bool isWorthKeeping(cairo_t* context, const Rect& area, const SpritePlace& place) {
    constexpr double MostPixels = 4e7;
    constexpr double LeastSeen = 0.125; // of the area
    if (place.grid.pixels.width * place.grid.pixels.height > MostPixels) {
        return false;
    }
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    cairo_clip_extents(context, &left, &top, &right, &bottom);
    const double width = std::min(right, area.maxX()) - std::max(left, area.minX());
    const double height = std::min(bottom, area.maxY()) - std::max(top, area.minY());
    return std::max(0.0, width) * std::max(0.0, height) >= LeastSeen * area.width() * area.height();
}

void paintSprite(cairo_t* context, cairo_t* sprite, const SpritePlace& place) {
    const SavedState saved{context};
    cairo_identity_matrix(context);
    cairo_set_source_surface(context, cairo_get_target(sprite), place.corner.x / place.grid.deviceScale,
                             place.corner.y / place.grid.deviceScale);
    // Pixel lies on pixel, so nothing is to be interpolated.
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    cairo_paint(context);
}

} // namespace kestrune::desk
