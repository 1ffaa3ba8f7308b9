#include "desk/paint/toolkit/ImageStore.h"

#include "desk/paint/toolkit/Shapes.h"

namespace kestrune::desk {

cairo_surface_t* ImageStore::image(const std::string& path) {
    const auto [entry, isNew] = images_.try_emplace(path);
    if (isNew) {
        SurfaceHandle read{cairo_image_surface_create_from_png(path.c_str())};
        if (cairo_surface_status(read.get()) == CAIRO_STATUS_SUCCESS) {
            entry->second = std::move(read);
        }
    }
    return entry->second.get();
}

void paintImage(cairo_t* context, cairo_surface_t* image, const Rect& area,
                const std::optional<Color>& tint) {
    const SavedState saved{context};
    const PatternHandle pattern{cairo_pattern_create_for_surface(image)};
    cairo_matrix_t toImage;
    cairo_matrix_init_scale(&toImage, cairo_image_surface_get_width(image) / area.width(),
                            cairo_image_surface_get_height(image) / area.height());
    cairo_matrix_translate(&toImage, -area.minX(), -area.minY());
    cairo_pattern_set_matrix(pattern.get(), &toImage);
    cairo_pattern_set_filter(pattern.get(), CAIRO_FILTER_BEST);
    cairo_rectangle(context, area.minX(), area.minY(), area.width(), area.height());
    cairo_clip(context);
    if (tint) {
        setColor(context, *tint);
        cairo_mask(context, pattern.get());
    } else {
        cairo_set_source(context, pattern.get());
        cairo_paint(context);
    }
}

} // namespace kestrune::desk
