#include "desk/paint/desk/DisplayPainter.h"

#include "desk/paint/mac/Wallpaper.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>

namespace kestrune::desk {

void enterDisplay(cairo_t* context, const DisplayPlace& place) {
    const Rect& screen = place.screen;
    cairo_rectangle(context, screen.minX(), screen.minY(), screen.width(), screen.height());
    cairo_clip(context);
    cairo_translate(context, screen.minX(), screen.minY());
    cairo_scale(context, place.scale, place.scale);
    cairo_translate(context, -place.bounds.minX(), -place.bounds.minY());
}

void HousingPainter::paintShadow(cairo_t* context, const DisplayPlace& place, bool dark) {
    constexpr double Blur = 26;
    constexpr double Drop = 8;
    const double depth = std::min(1.0, place.housing.height() / 160);
    const Rect shape = movedBy(place.housing, {0, Drop * depth});
    shadow_.paint(context, enlargedBy(shape, 1.25 * Blur), {place.bounds.size, place.scale, 0, dark},
                  [&](cairo_t* sprite) {
                      paintSoftShadow(sprite, shape, Blur * depth, paletteFor(dark).displayShadow,
                                      [&](cairo_t* mask) {
                                          addRoundedRectangle(mask, shape, place.housingCornerRadius);
                                      });
                  });
}

void HousingPainter::paint(cairo_t* context, const DisplayPlace& place, std::size_t wallpaper, bool dark) {
    const Palette& palette = paletteFor(dark);
    housing_.paint(context, place.housing, {place.bounds.size, place.scale, wallpaper, dark},
                   [&](cairo_t* sprite) {
                       fillRoundedRectangle(sprite, place.housing, place.housingCornerRadius, palette.bezel);
                       strokeRoundedRectangle(sprite, place.housing, place.housingCornerRadius, 1,
                                              palette.bezelHighlight);
                       enterDisplay(sprite, place);
                       paintWallpaper(sprite, place.bounds, wallpaper);
                       setColor(sprite, palette.wallpaperShade);
                       cairo_paint(sprite);
                   });
}

void paintScreenCorners(cairo_t* context, const Palette& palette, const DisplayPlace& place) {
    const SavedState saved{context};
    const Rect& screen = place.screen;
    cairo_rectangle(context, screen.minX(), screen.minY(), screen.width(), screen.height());
    addRoundedRectangle(context, screen, place.screenCornerRadius);
    cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
    setColor(context, palette.bezel);
    cairo_fill(context);
}

} // namespace kestrune::desk
