#include "desk/paint/MenuLayout.h"

#include "desk/paint/MenuBarLayout.h"
#include "desk/paint/PanelPainter.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double RowHeight = 22;
constexpr double SeparatorHeight = 11;
constexpr double VerticalPadding = 5;
constexpr double LeadingPadding = 10; // within the selection
constexpr double TrailingPadding = 12;
constexpr double CheckColumn = 17;
constexpr double CheckColumnPadding = 6;
constexpr double KeyEquivalentGap = 28;
constexpr double NarrowestPanel = 120;
constexpr double GapBelowBar = 3;

double heightOf(const MenuRowPicture& row) {
    return row.kind == MenuRowKind::separator ? SeparatorHeight : RowHeight;
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

std::optional<MenuLayout> menuLayout(TextMeasure& measure, const DeskLayout& layout,
                                     const DeskPicture& picture, Size window) {
    const DisplayPlace* const place = picture.menu ? layout.place(picture.menu->display) : nullptr;
    if (!place) {
        return std::nullopt;
    }
    const MenuPicture& menu = *picture.menu;
    const Rect slot = anchorSlot(menuBarLayout(measure, *place, layout.scale(), picture), menu.anchor);
    if (slot.isNull()) {
        return std::nullopt;
    }
    MenuLayout result;
    const double width = std::max(1.0, std::min(panelWidth(measure, menu), window.width - 2 * PanelMargin));
    const double height = placeRows(result, menu, width, window.height - 2 * PanelMargin);
    result.panel = keptInside({std::round(slot.minX()), slot.maxY() + GapBelowBar, width, height}, window);
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

TextStyle menuTextStyle() { return {.size = 13}; }

} // namespace kestrune::desk
