#include "desk/paint/mac/ApplicationIcon.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

// A blank tile with rings, as wide within its area as the icons of other applications are.
void paintGeneralIcon(cairo_t* context, const Rect& area) {
    const double side = area.width();
    const double margin = side * 0.08;
    const Rect tile{area.minX() + margin, area.minY() + margin, side - 2 * margin, side - 2 * margin};
    const double radius = tile.width() * 0.225;
    addRoundedRectangle(context, tile, radius);
    fillWithVerticalGradient(context, tile.minY(), tile.maxY(), {rgb(0xFDFDFD), rgb(0xDCDBDD)});
    strokeRoundedRectangle(context, tile, radius, std::max(0.5, side / 96), rgb(0x000000, 0.16));
    const Point center{tile.minX() + tile.width() / 2, tile.minY() + tile.height() / 2};
    cairo_set_line_width(context, side * 0.022);
    setColor(context, rgb(0x8A888E, 0.55));
    for (const double ring : {0.13, 0.23, 0.33}) {
        addCircle(context, center, tile.width() * ring);
        cairo_stroke(context);
    }
}

} // namespace

void paintApplicationIcon(const Canvas& canvas, const std::optional<std::string>& path, const Rect& area) {
    if (cairo_surface_t* const image = path ? canvas.images.image(*path) : nullptr) {
        paintImage(canvas.context, image, area);
    } else {
        paintGeneralIcon(canvas.context, area);
    }
}

} // namespace kestrune::desk
