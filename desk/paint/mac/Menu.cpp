#include "desk/paint/mac/Menu.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/mac/MenuBar.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

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

constexpr TextStyle MenuText{.size = SystemTextSize};

double heightOf(const MenuRowPicture& row) {
    return row.kind == MenuRowKind::separator ? MenuSeparatorHeight : MenuRowHeight;
}

// From the panel's edge to the titles.
double titleInset(const MenuPicture& menu) {
    const bool anyMarked =
        std::any_of(menu.rows.begin(), menu.rows.end(), [](const MenuRowPicture& row) { return row.marked; });
    return MenuSelectionInset + (anyMarked ? CheckColumnPadding + CheckColumn : LeadingPadding);
}

double panelWidth(TextPainter& measure, const MenuPicture& menu) {
    double widestTitle = 0;
    double widestKey = 0;
    for (const MenuRowPicture& row : menu.rows) {
        if (row.kind == MenuRowKind::item) {
            widestTitle = std::max(widestTitle, measure.width(row.title, MenuText));
        }
        if (row.kind == MenuRowKind::item && !row.keyEquivalent.empty()) {
            widestKey = std::max(widestKey, KeyEquivalentGap + measure.width(row.keyEquivalent, MenuText));
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

// What hangs below a menu bar with its upper left corner at a place, moved left by as little as it takes to
// stay on the display.
Rect hangingOn(const Rect& display, Point corner, Size size) {
    const double left = std::min(corner.x, display.maxX() - DisplayMargin - size.width);
    return {std::max(left, display.minX() + DisplayMargin), corner.y, size.width, size.height};
}

void paintCheckMark(cairo_t* context, Point leading, const Color& color) {
    cairo_move_to(context, leading.x + 0.9, leading.y + 0.6);
    cairo_line_to(context, leading.x + 3.7, leading.y + 3.9);
    cairo_line_to(context, leading.x + 9.1, leading.y - 4.1);
    setColor(context, color);
    strokeRound(context, 1.6);
}

void paintMoreMark(cairo_t* context, const Rect& panel, const Color& color) {
    const Point tip{panel.minX() + panel.width() / 2, panel.maxY() - 2};
    cairo_move_to(context, tip.x - 4, tip.y - 3);
    cairo_line_to(context, tip.x, tip.y);
    cairo_line_to(context, tip.x + 4, tip.y - 3);
    setColor(context, color);
    strokeRound(context, 1.4);
}

void paintSeparator(const Canvas& canvas, const Rect& row) {
    constexpr double Inset = 15;
    fillRoundedRectangle(canvas.context,
                         {row.minX() + Inset, centerOf(row).y - 0.5, row.width() - 2 * Inset, 1}, 0,
                         canvas.palette.system.separator);
}

void paintItem(const Canvas& canvas, const MenuLayout& layout, const Rect& area, const MenuRowPicture& row) {
    const SystemColors& colors = canvas.palette.system;
    const double middle = centerOf(area).y;
    const bool isSelected = row.highlighted && row.enabled;
    if (isSelected) {
        fillRoundedRectangle(canvas.context, insetBy(area, MenuSelectionInset, 0), 4.5,
                             canvas.palette.system.accent);
    }
    const auto colored = [&](const Color& usual) {
        return isSelected ? rgb(0xFFFFFF) : row.enabled ? usual : colors.disabledText;
    };
    TextStyle style = MenuText;
    style.color = colored(colors.text);
    if (row.marked) {
        paintCheckMark(canvas.context, {layout.checkLeft, middle}, style.color);
    }
    // One more than the room, against rounding in the measured width.
    style.maximumWidth = std::max(0.0, layout.trailing - layout.titleLeft) + 1;
    canvas.text.paint(row.title, {layout.titleLeft, middle}, style);
    canvas.text.paint(
        row.keyEquivalent, {layout.trailing, middle},
        {.size = style.size, .color = colored(colors.detailText), .alignment = TextAlignment::trailing});
}

constexpr double ToolTipHeight = 20;
constexpr double ToolTipPadding = 7;
constexpr TextStyle ToolTipText{.size = 11, .maximumWidth = 320};

} // namespace

std::optional<MenuLayout> menuLayout(TextPainter& measure, const MacPicture& picture) {
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
            row = movedBy(row, result.panel.origin);
        }
    }
    result.checkLeft = result.panel.minX() + MenuSelectionInset + CheckColumnPadding;
    result.titleLeft = result.panel.minX() + titleInset(menu);
    result.trailing = result.panel.maxX() - MenuSelectionInset - TrailingPadding;
    return result;
}

PanelStyle menuPanelStyle(const Palette& palette) {
    return {.color = palette.system.menuPanel,
            .cornerRadius = MenuCornerRadius,
            .shadowBlur = 22,
            .shadowDrop = 7};
}

void paintMenu(const Canvas& canvas, const MenuLayout& layout, const MenuPicture& menu) {
    for (std::size_t index = 0; index < layout.rows.size(); ++index) {
        const Rect& area = layout.rows[index];
        if (area.isNull()) {
            break;
        }
        if (menu.rows[index].kind == MenuRowKind::separator) {
            paintSeparator(canvas, area);
        } else {
            paintItem(canvas, layout, area, menu.rows[index]);
        }
    }
    if (layout.hasMore) {
        paintMoreMark(canvas.context, layout.panel, canvas.palette.system.detailText);
    }
}

std::optional<Rect> toolTipArea(TextPainter& measure, const MacPicture& picture) {
    if (!picture.toolTip || picture.toolTip->text.empty() ||
        picture.toolTip->display >= picture.displays.size()) {
        return std::nullopt;
    }
    const Rect& display = picture.displays[picture.toolTip->display].bounds;
    const Rect slot =
        anchorSlot(menuBarLayout(measure, display, picture), StatusItemAnchor{picture.toolTip->item});
    if (slot.isNull()) {
        return std::nullopt;
    }
    constexpr double RoomForPointer = 20;
    const double width = std::ceil(measure.width(picture.toolTip->text, ToolTipText)) + 2 * ToolTipPadding;
    return hangingOn(display, {std::round(centerOf(slot).x), slot.maxY() + RoomForPointer},
                     {std::min(width, display.width()), ToolTipHeight});
}

PanelStyle toolTipPanelStyle(const Palette& palette) {
    return {.color = palette.system.toolTipPanel, .cornerRadius = 3.5, .shadowBlur = 9, .shadowDrop = 3};
}

void paintToolTip(const Canvas& canvas, const Rect& area, std::string_view text) {
    TextStyle style = ToolTipText;
    style.color = canvas.palette.system.text;
    // One more than the room, against rounding in the measured width.
    style.maximumWidth = std::max(0.0, area.width() - 2 * ToolTipPadding) + 1;
    canvas.text.paint(text, {area.minX() + ToolTipPadding, area.minY() + area.height() / 2}, style);
}

} // namespace kestrune::desk
