#include "desk/paint/mac/MenuPainter.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

double middleOf(const Rect& row) { return row.minY() + row.height() / 2; }

void strokeOpenPath(cairo_t* context, double lineWidth, const Color& color) {
    const SavedState saved{context};
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_width(context, lineWidth);
    setColor(context, color);
    cairo_stroke(context);
}

void paintCheckMark(cairo_t* context, Point leading, const Color& color) {
    cairo_move_to(context, leading.x + 0.9, leading.y + 0.6);
    cairo_line_to(context, leading.x + 3.7, leading.y + 3.9);
    cairo_line_to(context, leading.x + 9.1, leading.y - 4.1);
    strokeOpenPath(context, 1.6, color);
}

void paintMoreMark(cairo_t* context, const Rect& panel, const Color& color) {
    const Point tip{panel.minX() + panel.width() / 2, panel.maxY() - 2};
    cairo_move_to(context, tip.x - 4, tip.y - 3);
    cairo_line_to(context, tip.x, tip.y);
    cairo_line_to(context, tip.x + 4, tip.y - 3);
    strokeOpenPath(context, 1.4, color);
}

void paintSeparator(const Canvas& canvas, const Rect& row) {
    constexpr double Inset = 15;
    fillRoundedRectangle(canvas.context,
                         {row.minX() + Inset, middleOf(row) - 0.5, row.width() - 2 * Inset, 1}, 0,
                         canvas.palette.system.separator);
}

void paintItem(const Canvas& canvas, const MenuLayout& layout, const Rect& area, const MenuRowPicture& row) {
    const SystemColors& colors = canvas.palette.system;
    const bool isSelected = row.highlighted && row.enabled;
    if (isSelected) {
        fillRoundedRectangle(canvas.context,
                             {area.minX() + MenuSelectionInset, area.minY(),
                              area.width() - 2 * MenuSelectionInset, area.height()},
                             4.5, canvas.palette.system.accent);
    }
    const auto colored = [&](const Color& usual) {
        return isSelected ? rgb(0xFFFFFF) : row.enabled ? usual : colors.disabledText;
    };
    TextStyle style = menuTextStyle();
    style.color = colored(colors.text);
    if (row.marked) {
        paintCheckMark(canvas.context, {layout.checkLeft, middleOf(area)}, style.color);
    }
    // One more than the room, against rounding in the measured width.
    style.maximumWidth = std::max(0.0, layout.trailing - layout.titleLeft) + 1;
    canvas.text.paint(row.title, {layout.titleLeft, middleOf(area)}, style);
    canvas.text.paint(
        row.keyEquivalent, {layout.trailing, middleOf(area)},
        {.size = style.size, .color = colored(colors.detailText), .alignment = TextAlignment::trailing});
}

} // namespace

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

} // namespace kestrune::desk
