#include "desk/paint/mac/MenuLayout.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/mac/MenuBarLayout.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double VerticalPadding = 5;
constexpr double LeadingPadding = 10; // within the selection
constexpr double TrailingPadding = 12;
constexpr double CheckColumn = 17;
constexpr double CheckColumnPadding = 6;
constexpr double KeyEquivalentGap = 28;
constexpr double NarrowestPanel = 120;
constexpr double GapBelowBar = 1;
constexpr double DisplayMargin = 4; // between a menu and the edge of its display

double heightOf(const MenuRowPicture& row) {
    return row.kind == MenuRowKind::separator ? MenuSeparatorHeight : MenuRowHeight;
}

bool anyMarked(const MenuPicture& menu) {
    return std::any_of(menu.rows.begin(), menu.rows.end(),
                       [](const MenuRowPicture& row) { return row.marked; });
}

// From the panel's edge to the titles.
double titleInset(const MenuPicture& menu) {
    return MenuSelectionInset + (anyMarked(menu) ? CheckColumnPadding + CheckColumn : LeadingPadding);
}

double panelWidth(TextMeasure& measure, const MenuPicture& menu) {
    double widestTitle = 0;
    double widestKey = 0;
    for (const MenuRowPicture& row : menu.rows) {
        if (row.kind == MenuRowKind::item) {
            widestTitle = std::max(widestTitle, measure.width(row.title, menuTextStyle()));
        }
        if (row.kind == MenuRowKind::item && !row.keyEquivalent.empty()) {
            widestKey =
                std::max(widestKey, KeyEquivalentGap + measure.width(row.keyEquivalent, menuTextStyle()));
        }
    }
    return std::max(NarrowestPanel, std::ceil(titleInset(menu) + widestTitle + widestKey + TrailingPadding +
                                              MenuSelectionInset));
}

// Gives the height of the panel. Rows are placed as if the panel's upper left corner were the origin.
double placeRows(MenuLayout& layout, const MenuPicture& menu, double width, double tallest) {
    double y = VerticalPadding;
    for (const MenuRowPicture& row : menu.rows) {
        layout.hasMore = layout.hasMore || y + heightOf(row) + VerticalPadding > tallest;
        layout.rows.push_back(layout.hasMore ? Rect::null() : Rect{0, y, width, heightOf(row)});
        y += layout.hasMore ? 0 : heightOf(row);
    }
    return y + VerticalPadding;
}

} // namespace

std::optional<MenuLayout> menuLayout(TextMeasure& measure, const DeskPicture& picture) {
    if (!picture.menu || picture.menu->display >= picture.displays.size()) {
        return std::nullopt;
    }
    const MenuPicture& menu = *picture.menu;
    const Rect& display = picture.displays[menu.display].bounds;
    const Rect slot = anchorSlot(menuBarLayout(measure, display, picture), menu.anchor);
    if (slot.isNull()) {
        return std::nullopt;
    }
    MenuLayout result;
    const Point corner{slot.minX(), slot.maxY() + GapBelowBar};
    const double width =
        std::max(1.0, std::min(panelWidth(measure, menu), display.width() - 2 * DisplayMargin));
    const double height = placeRows(result, menu, width, display.maxY() - DisplayMargin - corner.y);
    result.panel = hangingOn(display, corner, {width, height});
    for (Rect& row : result.rows) {
        if (!row.isNull()) {
            row.origin.x += result.panel.minX();
            row.origin.y += result.panel.minY();
        }
    }
    result.checkLeft = result.panel.minX() + MenuSelectionInset + CheckColumnPadding;
    result.titleLeft = result.panel.minX() + titleInset(menu);
    result.trailing = result.panel.maxX() - MenuSelectionInset - TrailingPadding;
    return result;
}

Rect hangingOn(const Rect& display, Point corner, Size size) {
    const double left = std::min(corner.x, display.maxX() - DisplayMargin - size.width);
    return {std::max(left, display.minX() + DisplayMargin), corner.y, size.width, size.height};
}

TextStyle menuTextStyle() { return {.size = SystemTextSize}; }

} // namespace kestrune::desk
