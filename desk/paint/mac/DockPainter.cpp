#include "desk/paint/mac/DockPainter.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/DockIcons.h"
#include "desk/paint/mac/Measures.h"
#include "desk/paint/mac/WindowPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/SoftShadow.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double SeparatorWidth = 16; // with the gaps beside it
constexpr double PanelHeight = DockIconSide + 2 * DockPadding;
constexpr double DotRadius = 2;
constexpr double ShadowBlur = 20;

// As parts of the display.
constexpr double WidestPanel = 0.92;
constexpr double HighestPanel = 0.2;

Point topCenter(const Rect& rect) { return {rect.minX() + rect.width() / 2, rect.minY()}; }

// How strong a mark of this age is: full at first, then fading.
double strengthAt(double age) { return std::clamp(1.6 * (1 - age), 0.0, 1.0); }

void paintArrowHead(cairo_t* context, Point tip, Point direction) {
    const double length = std::hypot(direction.x, direction.y);
    if (length == 0) {
        return;
    }
    const SavedState saved{context};
    cairo_translate(context, tip.x, tip.y);
    cairo_rotate(context, std::atan2(direction.y, direction.x));
    cairo_move_to(context, 0, 0);
    cairo_line_to(context, -11, -6.5);
    cairo_line_to(context, -8.5, 0);
    cairo_line_to(context, -11, 6.5);
    cairo_close_path(context);
    cairo_fill(context);
}

} // namespace

DockPlace dockPlace(const Rect& display, const DeskPicture& picture) {
    const std::size_t places = DockIconCount + picture.miniaturized.size() + (picture.dockIcon ? 1 : 0);
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
    while (dock.icons.size() + 1 < DockIconCount) {
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

void paintDock(const Canvas& canvas, const DockPlace& dock, const DeskPicture& picture) {
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
        paintDockIcon(canvas.context, icon, dock.icons[icon]);
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

void paintDockTrail(cairo_t* context, const Rect& from, const Rect& to, double age) {
    const double strength = strengthAt(age);
    if (!(strength > 0)) {
        return;
    }
    const SavedState saved{context};
    const Color white = rgb(0xFFFFFF, strength);
    constexpr double Dashes[] = {5, 4};
    cairo_set_dash(context, Dashes, 2, 0);
    strokeRoundedRectangle(context, from, from.height() / 4, 1.5, white.withAlpha(0.75 * strength));

    const Point start{topCenter(from).x, topCenter(from).y - 4};
    const Point tip{topCenter(to).x, topCenter(to).y - 5};
    const double span = std::hypot(tip.x - start.x, tip.y - start.y);
    const double lift = std::clamp(span * 0.42, 40.0, 210.0);
    const Point bend{(start.x + tip.x) / 2, std::min(start.y, tip.y) - lift};
    const auto towards = [](Point first, Point second, double part) {
        return Point{first.x + (second.x - first.x) * part, first.y + (second.y - first.y) * part};
    };
    const Point startControl = towards(start, bend, 0.72);
    const Point endControl = towards(tip, bend, 0.72);
    const Point arrival{tip.x - endControl.x, tip.y - endControl.y};
    const double arrivalLength = std::max(1.0, std::hypot(arrival.x, arrival.y));
    const Point end = towards(tip, endControl, std::min(0.5, 17 / arrivalLength));
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    constexpr double Dots[] = {0.01, 10};
    cairo_set_dash(context, Dots, 2, 0);
    cairo_move_to(context, start.x, start.y);
    cairo_curve_to(context, startControl.x, startControl.y, endControl.x, endControl.y, end.x, end.y);
    setColor(context, rgb(0x000000, 0.22 * strength));
    cairo_set_line_width(context, 6);
    cairo_stroke_preserve(context);
    setColor(context, white);
    cairo_set_line_width(context, 4.5);
    cairo_stroke(context);
    paintArrowHead(context, tip, arrival);
}

} // namespace kestrune::desk
