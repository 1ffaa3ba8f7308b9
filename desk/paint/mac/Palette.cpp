#include "desk/paint/mac/Palette.h"

#include "ui/SystemColor.h"

namespace kestrune::desk {
namespace {

constexpr Palette palette(bool isDark) {
    const auto pick = [isDark](const Color& light, const Color& dark) { return isDark ? dark : light; };
    return {
        // Top and bottom of the window differ by the same amount in each component, so that the steps of the
        // gradient are not tinted.
        .windowTop = pick(rgb(0xF8F6F2), rgb(0x2B292A)),
        .windowBottom = pick(rgb(0xE9E7E3), rgb(0x1C1A1B)),
        .hairline = pick(rgb(0x3A2F22, 0.10), rgb(0xFFFFFF, 0.10)),
        .primaryText = pick(rgb(0x24211D), rgb(0xF2EFEB)),
        .secondaryText = pick(rgb(0x6E675E), rgb(0xA59F98)),
        .keyFace = pick(rgb(0xFFFFFF), rgb(0x413E40)),
        .keyEdge = pick(rgb(0xC9C2B8), rgb(0x0F0E10)),
        .keyBorder = pick(rgb(0x3A2F22, 0.14), rgb(0xFFFFFF, 0.12)),
        .bezel = pick(rgb(0x17171A), rgb(0x0A0A0B)),
        .bezelHighlight = pick(rgb(0xFFFFFF, 0.16), rgb(0xFFFFFF, 0.20)),
        .displayShadow = pick(rgb(0x33261A, 0.34), rgb(0x000000, 0.60)),
        .wallpaperShade = pick(rgb(0x000000, 0), rgb(0x0B0A14, 0.18)),
        .menuBar = pick(rgb(0xFFFFFF, 0.42), rgb(0x121116, 0.34)),
        .menuBarText = pick(rgb(0x1C1A1E, 0.86), rgb(0xFFFFFF, 0.88)),
        .dockPanel = pick(rgb(0xFFFFFF, 0.36), rgb(0x2A2930, 0.46)),
        .dockBorder = pick(rgb(0xFFFFFF, 0.42), rgb(0xFFFFFF, 0.18)),
        .dockShadow = pick(rgb(0x000000, 0.30), rgb(0x000000, 0.40)),
        .accent = pick(rgb(0x4A5BD0), rgb(0x5F6FE4)),
        .band = pick(rgb(0xF2552C), rgb(0xFF6A3D)),
        .positive = pick(rgb(0x23915F), rgb(0x4CC38A)),
        .caution = pick(rgb(0xC27A0A), rgb(0xF0A93B)),
        .inactive = pick(rgb(0x8B847B), rgb(0x8F8983)),
        .system = {.accent = pick(rgb(ui::systemColor(ui::Color::accent).light),
                                  rgb(ui::systemColor(ui::Color::accent).dark)),
                   .menuBarHighlight = pick(rgb(0xFFFFFF, 0.48), rgb(0xFFFFFF, 0.24)),
                   .menuPanel = pick(rgb(0xF4F3F2, 0.985), rgb(0x2E2C2F, 0.985)),
                   .toolTipPanel = pick(rgb(0xF7F6F5), rgb(0x3A383B)),
                   .panelEdge = pick(rgb(0x000000, 0.17), rgb(0x000000, 0.62)),
                   .panelHighlight = pick(rgb(0xFFFFFF, 0.60), rgb(0xFFFFFF, 0.17)),
                   .panelShadow = pick(rgb(0x000000, 0.30), rgb(0x000000, 0.50)),
                   .text = pick(rgb(0x000000, 0.86), rgb(0xFFFFFF, 0.90)),
                   .detailText = pick(rgb(0x000000, 0.50), rgb(0xFFFFFF, 0.55)),
                   .disabledText = pick(rgb(0x000000, 0.30), rgb(0xFFFFFF, 0.30)),
                   .separator = pick(rgb(0x000000, 0.11), rgb(0xFFFFFF, 0.13)),
                   .paper = pick(rgb(0xFFFFFF), rgb(0x1E1D1F)),
                   .buttonFace = pick(rgb(0xFFFFFF), rgb(0x636065)),
                   .buttonEdge = pick(rgb(0x000000, 0.13), rgb(0xFFFFFF, 0.08)),
                   .pressedShade = pick(rgb(0x000000, 0.14), rgb(0xFFFFFF, 0.16)),
                   .switchTrack = pick(rgb(0x000000, 0.16), rgb(0xFFFFFF, 0.20)),
                   .inactiveTrack = pick(rgb(0x000000, 0.34), rgb(0xFFFFFF, 0.42)),
                   .focusRing = pick(rgb(0x0067F4, 0.50), rgb(0x1AA9FF, 0.60)),
                   .windowButton = pick(rgb(0x000000, 0.14), rgb(0xFFFFFF, 0.17))},
        .application = {.window = pick(rgb(ui::WindowBackground.light), rgb(ui::WindowBackground.dark)),
                        .titleBar = pick(rgb(0xFFFFFF, 0.45), rgb(0xFFFFFF, 0.05)),
                        .title = pick(rgb(0x000000, 0.80), rgb(0xFFFFFF, 0.85)),
                        .inactiveTitle = pick(rgb(0x000000, 0.32), rgb(0xFFFFFF, 0.36))},
        .isDark = isDark,
    };
}

constexpr Palette Light = palette(false);
constexpr Palette Dark = palette(true);

} // namespace

const Palette& paletteFor(bool dark) { return dark ? Dark : Light; }

} // namespace kestrune::desk
