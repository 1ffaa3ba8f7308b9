#include "desk/paint/mac/Palette.h"

#include <array>
#include <cmath>

namespace kestrune::desk {
namespace {

// Top and bottom of the window differ by the same amount in each component, so that the steps of the gradient
// are not tinted.
constexpr Palette Light{
    .windowTop = rgb(0xF8F6F2),
    .windowBottom = rgb(0xE9E7E3),
    .hairline = rgb(0x3A2F22, 0.10),
    .primaryText = rgb(0x24211D),
    .secondaryText = rgb(0x6E675E),
    .keyFace = rgb(0xFFFFFF),
    .keyEdge = rgb(0xC9C2B8),
    .keyBorder = rgb(0x3A2F22, 0.14),
    .bezel = rgb(0x17171A),
    .bezelHighlight = rgb(0xFFFFFF, 0.16),
    .displayShadow = rgb(0x33261A, 0.34),
    .wallpaperShade = rgb(0x000000, 0),
    .menuBar = rgb(0xFFFFFF, 0.42),
    .menuBarText = rgb(0x1C1A1E, 0.86),
    .caption = rgb(0xFFFFFF, 0.62),
    .captionText = rgb(0x201D22),
    .captionDetail = rgb(0x201D22, 0.62),
    .dockPanel = rgb(0xFFFFFF, 0.36),
    .dockBorder = rgb(0xFFFFFF, 0.42),
    .dockShadow = rgb(0x000000, 0.30),
    .accent = rgb(0x4A5BD0),
    .band = rgb(0xF2552C),
    .positive = rgb(0x23915F),
    .caution = rgb(0xC27A0A),
    .inactive = rgb(0x8B847B),
    .system = {.accent = rgb(ui::systemColor(ui::Color::accent).light),
               .menuBarHighlight = rgb(0xFFFFFF, 0.48),
               .menuPanel = rgb(0xF4F3F2, 0.985),
               .toolTipPanel = rgb(0xF7F6F5),
               .panelEdge = rgb(0x000000, 0.17),
               .panelHighlight = rgb(0xFFFFFF, 0.60),
               .panelShadow = rgb(0x000000, 0.30),
               .text = rgb(0x000000, 0.86),
               .detailText = rgb(0x000000, 0.50),
               .disabledText = rgb(0x000000, 0.30),
               .separator = rgb(0x000000, 0.11),
               .paper = rgb(0xFFFFFF),
               .buttonFace = rgb(0xFFFFFF),
               .buttonEdge = rgb(0x000000, 0.13),
               .pressedShade = rgb(0x000000, 0.14),
               .switchTrack = rgb(0x000000, 0.16),
               .inactiveTrack = rgb(0x000000, 0.34),
               .focusRing = rgb(0x0067F4, 0.50),
               .windowButton = rgb(0x000000, 0.14)},
    .application = {.window = rgb(ui::WindowBackground.light),
                    .titleBar = rgb(0xFFFFFF, 0.45),
                    .title = rgb(0x000000, 0.80),
                    .inactiveTitle = rgb(0x000000, 0.32)},
    .isDark = false,
};

constexpr Palette Dark{
    .windowTop = rgb(0x2B292A),
    .windowBottom = rgb(0x1C1A1B),
    .hairline = rgb(0xFFFFFF, 0.10),
    .primaryText = rgb(0xF2EFEB),
    .secondaryText = rgb(0xA59F98),
    .keyFace = rgb(0x413E40),
    .keyEdge = rgb(0x0F0E10),
    .keyBorder = rgb(0xFFFFFF, 0.12),
    .bezel = rgb(0x0A0A0B),
    .bezelHighlight = rgb(0xFFFFFF, 0.20),
    .displayShadow = rgb(0x000000, 0.60),
    .wallpaperShade = rgb(0x0B0A14, 0.18),
    .menuBar = rgb(0x121116, 0.34),
    .menuBarText = rgb(0xFFFFFF, 0.88),
    .caption = rgb(0x121116, 0.46),
    .captionText = rgb(0xFFFFFF),
    .captionDetail = rgb(0xFFFFFF, 0.68),
    .dockPanel = rgb(0x2A2930, 0.46),
    .dockBorder = rgb(0xFFFFFF, 0.18),
    .dockShadow = rgb(0x000000, 0.40),
    .accent = rgb(0x5F6FE4),
    .band = rgb(0xFF6A3D),
    .positive = rgb(0x4CC38A),
    .caution = rgb(0xF0A93B),
    .inactive = rgb(0x8F8983),
    .system = {.accent = rgb(ui::systemColor(ui::Color::accent).dark),
               .menuBarHighlight = rgb(0xFFFFFF, 0.24),
               .menuPanel = rgb(0x2E2C2F, 0.985),
               .toolTipPanel = rgb(0x3A383B),
               .panelEdge = rgb(0x000000, 0.62),
               .panelHighlight = rgb(0xFFFFFF, 0.17),
               .panelShadow = rgb(0x000000, 0.50),
               .text = rgb(0xFFFFFF, 0.90),
               .detailText = rgb(0xFFFFFF, 0.55),
               .disabledText = rgb(0xFFFFFF, 0.30),
               .separator = rgb(0xFFFFFF, 0.13),
               .paper = rgb(0x1E1D1F),
               .buttonFace = rgb(0x636065),
               .buttonEdge = rgb(0xFFFFFF, 0.08),
               .pressedShade = rgb(0xFFFFFF, 0.16),
               .switchTrack = rgb(0xFFFFFF, 0.20),
               .inactiveTrack = rgb(0xFFFFFF, 0.42),
               .focusRing = rgb(0x1AA9FF, 0.60),
               .windowButton = rgb(0xFFFFFF, 0.17)},
    .application = {.window = rgb(ui::WindowBackground.dark),
                    .titleBar = rgb(0xFFFFFF, 0.05),
                    .title = rgb(0xFFFFFF, 0.85),
                    .inactiveTitle = rgb(0xFFFFFF, 0.36)},
    .isDark = true,
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

} // namespace

Color mix(const Color& first, const Color& second, double fraction) {
    return {std::lerp(first.red, second.red, fraction), std::lerp(first.green, second.green, fraction),
            std::lerp(first.blue, second.blue, fraction), std::lerp(first.alpha, second.alpha, fraction)};
}

const Palette& paletteFor(bool dark) { return dark ? Dark : Light; }

const WallpaperColors& wallpaperColors(std::size_t wallpaper) {
    return Wallpapers[wallpaper % Wallpapers.size()];
}

} // namespace kestrune::desk
