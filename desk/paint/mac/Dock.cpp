#include "desk/paint/mac/Dock.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/Measures.h"
#include "desk/paint/mac/Window.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace kestrune::desk {
namespace {

constexpr double SeparatorWidth = 16; // with the gaps beside it
constexpr double PanelHeight = DockIconSide + 2 * DockPadding;
constexpr double DotRadius = 2;
constexpr double ShadowBlur = 20;

// As parts of the display.
constexpr double WidestPanel = 0.92;
constexpr double HighestPanel = 0.2;

// The icon of another application: a coloured rounded square with petals around its middle.
struct Icon {
    Color top;
    Color bottom;
    int petals;
    double distance; // of a petal from the middle, in halves of the square's side as its size
    Size petal;
    Color glyph = rgb(0xFFFFFF, 0.96);
};

constexpr std::array Icons{
    Icon{rgb(0x6F9BE8), rgb(0x3A63C2), 8, 0.42, {0.22, 0.22}},
    Icon{rgb(0xFBC46A), rgb(0xE88B2E), 12, 0.38, {0.34, 0.10}},
    Icon{rgb(0x5CC7C0), rgb(0x1F8A8E), 3, 0.28, {0.52, 0.34}},
    Icon{rgb(0xF58B78), rgb(0xD2504A), 2, 0.24, {0.26, 0.96}},
    Icon{rgb(0xA98CEB), rgb(0x6C4CC4), 4, 0.36, {0.40, 0.40}},
    Icon{rgb(0x7C8294), rgb(0x474C5C), 6, 0.40, {0.30, 0.30}},
    Icon{rgb(0x8FD08A), rgb(0x3E9A57), 5, 0.32, {0.52, 0.30}},
    Icon{rgb(0xFDFCFA), rgb(0xE3E0DC), 1, 0, {0.84, 0.84}, rgb(0x6C6A78)},
};

void paintIcon(cairo_t* context, const Icon& icon, const Rect& square) {
    const double half = square.width() / 2;
    const double radius = half / 2;
    addRoundedRectangle(context, square, radius);
    fillWithVerticalGradient(context, square.minY(), square.maxY(), {icon.top, icon.bottom});
    strokeRoundedRectangle(context, square, radius, half * 0.06, rgb(0xFFFFFF, 0.22));
    const SavedState saved{context};
    cairo_translate(context, centerOf(square).x, centerOf(square).y);
    cairo_scale(context, half, half);
    for (int petal = 0; petal < icon.petals; ++petal) {
        const Size& size = icon.petal;
        fillRoundedRectangle(context,
                             {icon.distance - size.width / 2, -size.height / 2, size.width, size.height},
                             std::min(size.width, size.height) / 3, icon.glyph);
        cairo_rotate(context, 2 * std::numbers::pi / icon.petals);
    }
}

} // namespace

DockPlace dockPlace(const Rect& display, const MacPicture& picture) {
    const std::size_t places = Icons.size() + picture.miniaturized.size() + (picture.dockIcon ? 1 : 0);
    const double width = static_cast<double>(places) * (DockIconSide + DockIconGap) - 2 * DockIconGap +
                         SeparatorWidth + 2 * DockPadding;
    DockPlace dock;
    dock.scale =
        std::min({1.0, display.width() * WidestPanel / width, display.height() * HighestPanel / PanelHeight});
    dock.panel.size = {width * dock.scale, PanelHeight * dock.scale};
    dock.panel.origin = {display.minX() + (display.width() - dock.panel.width()) / 2,
                         display.maxY() - DockBottomMargin * dock.scale - dock.panel.height()};
    double x = dock.panel.minX() + DockPadding * dock.scale;
    const auto nextPlace = [&] {
        const Rect place{x, dock.panel.minY() + DockPadding * dock.scale, DockIconSide * dock.scale,
                         DockIconSide * dock.scale};
        x += (DockIconSide + DockIconGap) * dock.scale;
        return place;
    };
    while (dock.icons.size() + 1 < Icons.size()) {
        dock.icons.push_back(nextPlace());
    }
    if (picture.dockIcon) {
        dock.icon = nextPlace();
    }
    x += (SeparatorWidth - DockIconGap) * dock.scale;
    dock.separator = x - SeparatorWidth * dock.scale / 2;
    while (dock.tiles.size() < picture.miniaturized.size()) {
        dock.tiles.push_back(nextPlace());
    }
    dock.icons.push_back(nextPlace());
    return dock;
}

Rect dockExtent(const DockPlace& dock) { return enlargedBy(dock.panel, 2 * ShadowBlur * dock.scale); }

void paintDock(const Canvas& canvas, const DockPlace& dock, const MacPicture& picture) {
    constexpr double SmallestScale = 1.0 / 64;
    if (dock.scale < SmallestScale) {
        return; // Too small to see; the glyphs' transformation would come close to a singular one.
    }
    const double radius = DockCornerRadius * dock.scale;
    paintSoftShadow(canvas.context, dock.panel, ShadowBlur * dock.scale, canvas.palette.dockShadow,
                    [&](cairo_t* mask) { addRoundedRectangle(mask, dock.panel, radius); });
    fillRoundedRectangle(canvas.context, dock.panel, radius, canvas.palette.dockPanel);
    strokeRoundedRectangle(canvas.context, dock.panel, radius, 1, canvas.palette.dockBorder);

    const Rect& first = dock.icons.front();
    fillRoundedRectangle(canvas.context,
                         {dock.separator - 0.5, first.minY() + 3, 1, std::max(0.0, first.height() - 6)}, 0,
                         canvas.palette.menuBarText.withAlpha(0.22));
    const auto paintDot = [&](const Rect& icon) {
        fillCircle(canvas.context, {centerOf(icon).x, (icon.maxY() + dock.panel.maxY()) / 2},
                   DotRadius * dock.scale, canvas.palette.menuBarText.withAlpha(0.6));
    };
    for (std::size_t icon = 0; icon < dock.icons.size(); ++icon) {
        paintIcon(canvas.context, Icons.at(icon), dock.icons[icon]);
        const bool isRunning = icon == 0 || icon == 2 || icon == 4;
        if (isRunning) {
            paintDot(dock.icons[icon]);
        }
    }
    if (dock.icon) {
        // The drawing has the margin around it that all icons have on the Mac.
        paintApplicationIcon(canvas, picture.dockIcon, enlargedBy(*dock.icon, 5 * dock.scale));
        paintDot(*dock.icon);
    }
    for (std::size_t tile = 0; tile < dock.tiles.size(); ++tile) {
        paintMiniature(canvas, dock.tiles[tile], picture.miniaturized[tile]);
    }
}

} // namespace kestrune::desk
