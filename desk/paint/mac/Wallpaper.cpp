#include "desk/paint/mac/Wallpaper.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace kestrune::desk {
namespace {

struct WallpaperColors {
    Color skyTop;
    Color skyMiddle;
    Color skyHorizon;
    Color sun;
    Color glow; // around the sun
    Color farHill;
    Color nearHill;
};

constexpr std::array<WallpaperColors, 6> Wallpapers{{
    // Lake at dawn
    {rgb(0x3E78B8), rgb(0x93BFE2), rgb(0xFFDFD0), rgb(0xFFFAF2), rgb(0xFFE6DC), rgb(0x9CBAD3), rgb(0x173A60)},
    // Plum dusk
    {rgb(0x4B3C80), rgb(0xB0709F), rgb(0xFFC49A), rgb(0xFFF0D4), rgb(0xFFB98C), rgb(0xB483A6), rgb(0x281D47)},
    // Sage valley
    {rgb(0x5BA397), rgb(0xB2DCC0), rgb(0xFAF3CC), rgb(0xFFFDEC), rgb(0xFFF7CC), rgb(0xA0CBAA), rgb(0x164944)},
    // Terracotta
    {rgb(0xCB6F50), rgb(0xF2B183), rgb(0xFFE9C2), rgb(0xFFF8E4), rgb(0xFFE2AE), rgb(0xE3A883), rgb(0x632A2B)},
    // Rose
    {rgb(0xAB4F80), rgb(0xE99AA9), rgb(0xFFE4D2), rgb(0xFFF4EA), rgb(0xFFD9C2), rgb(0xDB9AAC), rgb(0x4E1F4A)},
    // Blue hour
    {rgb(0x1C2C5C), rgb(0x4966A6), rgb(0xC3C8E2), rgb(0xFFFFFF), rgb(0xBFCBF2), rgb(0x7488BA), rgb(0x0E1735)},
}};

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
    fillGlow(context, sun, unit * 0.62, colors.glow.withAlpha(0.34));
    fillGlow(context, sun, unit * 0.24, colors.glow.withAlpha(0.42));
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
    const WallpaperColors& colors = Wallpapers[wallpaper % Wallpapers.size()];
    paintSky(context, screen, colors, wallpaper);
    for (int layer = 0; layer < Layers; ++layer) {
        paintHills(context, screen, colors, layer, wallpaper);
    }
}

} // namespace kestrune::desk
