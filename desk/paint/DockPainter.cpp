#include "desk/paint/DockPainter.h"

#include "desk/paint/DockIcons.h"
#include "desk/paint/Shapes.h"
#include "desk/paint/SoftShadow.h"
#include "desk/paint/WindowPainter.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

// Lengths as parts of an icon's side.
constexpr double IconGap = 0.22;
constexpr double Padding = 0.26;
constexpr double SeparatorWidth = 0.30;
constexpr double PanelHeight = 1 + 2 * Padding;
constexpr double PanelRadius = 0.42;
constexpr double BottomMargin = 0.18;
constexpr double IconSidePoints = 54;

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

DockPlace dockPlace(const DisplayPlace& display, double scale, std::size_t tiles) {
    const auto places = static_cast<double>(DockIconCount + tiles);
    const double widthInSides = places + (places - 1) * IconGap + SeparatorWidth + 2 * Padding;
    const Rect& screen = display.screen;
    const double recognisable = std::clamp(IconSidePoints * scale, 20.0, 44.0);
    double side = std::min({recognisable, screen.width() * 0.92 / widthInSides, screen.height() * 0.18});
    if (side > 8) {
        side = std::floor(side);
    }
    DockPlace dock;
    dock.iconSide = side;
    dock.panel.size = {widthInSides * side, PanelHeight * side};
    dock.panel.origin = {screen.minX() + (screen.width() - dock.panel.width()) / 2,
                         screen.maxY() - BottomMargin * side - dock.panel.height()};
    double x = dock.panel.minX() + Padding * side;
    const auto nextPlace = [&] {
        const Rect place{x, dock.panel.minY() + Padding * side, side, side};
        x += (1 + IconGap) * side;
        return place;
    };
    while (dock.icons.size() + 1 < DockIconCount) {
        dock.icons.push_back(nextPlace());
    }
    dock.separator = x + (SeparatorWidth - IconGap) * side / 2;
    x += SeparatorWidth * side;
    while (dock.tiles.size() < tiles) {
        dock.tiles.push_back(nextPlace());
    }
    dock.icons.push_back(nextPlace());
    return dock;
}

void paintDock(const Canvas& canvas, const DockPlace& dock, std::span<const WindowPicture> windows) {
    const double side = dock.iconSide;
    if (side < 1) {
        return; // Too small to see; the glyphs' transformation would come close to a singular one.
    }
    const double radius = PanelRadius * side;
    paintSoftShadow(canvas.context, dock.panel, std::max(2.0, side * 0.4), canvas.palette.dockShadow,
                    [&](cairo_t* mask) { addRoundedRectangle(mask, dock.panel, radius); });
    fillRoundedRectangle(canvas.context, dock.panel, radius, canvas.palette.dockPanel);
    strokeRoundedRectangle(canvas.context, dock.panel, radius, 1, canvas.palette.dockBorder);

    cairo_rectangle(canvas.context, dock.separator - 0.5, dock.icons.front().minY() + side * 0.06, 1,
                    side * 0.88);
    setColor(canvas.context, canvas.palette.menuBarText.withAlpha(0.22));
    cairo_fill(canvas.context);
    for (std::size_t icon = 0; icon < dock.icons.size(); ++icon) {
        paintDockIcon(canvas.context, icon, dock.icons[icon]);
        const bool isRunning = icon == 0 || icon == 2 || icon == 4;
        if (isRunning) {
            fillCircle(canvas.context,
                       {dock.icons[icon].minX() + side / 2, dock.panel.maxY() - Padding * side / 2},
                       std::max(0.8, side * 0.045), canvas.palette.menuBarText.withAlpha(0.6));
        }
    }
    for (std::size_t tile = 0; tile < std::min(dock.tiles.size(), windows.size()); ++tile) {
        paintMiniature(canvas, dock.tiles[tile], windows[tile]);
    }
}

void paintDockTrail(const Canvas& canvas, const DockPlace& from, const DockPlace& to, double age) {
    const double strength = strengthAt(age);
    if (!(strength > 0)) {
        return;
    }
    cairo_t* const context = canvas.context;
    const SavedState saved{context};
    const Color white = rgb(0xFFFFFF, strength);
    constexpr double Dashes[] = {5, 4};
    cairo_set_dash(context, Dashes, 2, 0);
    strokeRoundedRectangle(context, from.panel, PanelRadius * from.iconSide, 1.5,
                           white.withAlpha(0.75 * strength));

    const Point start{topCenter(from.panel).x, topCenter(from.panel).y - 4};
    const Point tip{topCenter(to.panel).x, topCenter(to.panel).y - 5};
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
