#include "desk/paint/mac/Wallpaper.h"

#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrune::desk {
namespace {

constexpr int Layers = 6;

// Hills and sun are sized by the shorter side, so that they keep their shape on wide and on tall screens.
double unitOf(const Rect& screen) { return std::min(screen.width(), screen.height()); }

// Where the ridge of a layer stands, as a part of the screen's height. `distance` is the way along the ridge
// in units.
double ridge(double distance, int layer, std::size_t wallpaper) {
    // Multiples of the golden ratio spread the phases so that no two ridges run parallel.
    const double phase = std::numbers::phi * (layer + 1) + 0.37 * static_cast<double>(wallpaper % 97);
    const auto wave = [&](double frequency, double shift) {
        return std::sin(2 * std::numbers::pi * (frequency * distance + phase * shift));
    };
    const double amplitude = 0.052 + 0.008 * layer;
    const double height =
        0.58 * wave(0.34 + 0.03 * layer, 1.0) + 0.30 * wave(0.71, 1.7) + 0.12 * wave(1.63, 2.3);
    return 0.50 + 0.088 * layer + amplitude * height;
}

void paintSky(cairo_t* context, const Rect& screen, const WallpaperColors& colors, std::size_t wallpaper) {
    cairo_rectangle(context, screen.minX(), screen.minY(), screen.width(), screen.height());
    fillWithVerticalGradient(context, screen.minY(), screen.minY() + screen.height() * 0.68,
                             {colors.skyTop, mix(colors.skyTop, colors.skyMiddle, 0.55), colors.skyMiddle,
                              mix(colors.skyMiddle, colors.skyHorizon, 0.6), colors.skyHorizon});
    const double side = wallpaper % 2 == 0 ? 0.70 : 0.30;
    const Point sun{screen.minX() + screen.width() * side, screen.minY() + screen.height() * 0.40};
    const double unit = unitOf(screen);
    addCircle(context, sun, unit * 0.62);
    fillWithGlow(context, sun, unit * 0.62, colors.glow.withAlpha(0.34));
    addCircle(context, sun, unit * 0.24);
    fillWithGlow(context, sun, unit * 0.24, colors.glow.withAlpha(0.42));
    fillCircle(context, sun, unit * 0.05, colors.sun.withAlpha(0.94));
}

void paintHills(cairo_t* context, const Rect& screen, const WallpaperColors& colors, int layer,
                std::size_t wallpaper) {
    constexpr int Steps = 700; // Smooth on the widest displays, too.
    double top = screen.maxY();
    cairo_move_to(context, screen.minX(), screen.maxY());
    for (int step = 0; step <= Steps; ++step) {
        const double x = screen.width() * step / Steps;
        const double y = screen.minY() + screen.height() * ridge(x / unitOf(screen), layer, wallpaper);
        top = std::min(top, y);
        cairo_line_to(context, screen.minX() + x, y);
    }
    cairo_line_to(context, screen.maxX(), screen.maxY());
    cairo_close_path(context);

    const double nearness = static_cast<double>(layer) / (Layers - 1);
    const Color crest = mix(colors.farHill, colors.nearHill, std::pow(nearness, 0.9));
    const Color haze = mix(crest, colors.skyHorizon, 0.42 * (1 - nearness));
    fillWithVerticalGradient(context, top, top + screen.height() * 0.30, {crest, haze});
}

} // namespace

void paintWallpaper(cairo_t* context, const Rect& screen, std::size_t wallpaper) {
    const SavedState saved{context};
    cairo_rectangle(context, screen.minX(), screen.minY(), screen.width(), screen.height());
    cairo_clip(context);
    const WallpaperColors& colors = wallpaperColors(wallpaper);
    paintSky(context, screen, colors, wallpaper);
    for (int layer = 0; layer < Layers; ++layer) {
        paintHills(context, screen, colors, layer, wallpaper);
    }
}

} // namespace kestrune::desk
