#include "desk/paint/mac/SettingsPanePainter.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

double middleOf(const Rect& rect) { return rect.minY() + rect.height() / 2; }

void paintHairline(const Canvas& canvas, double left, double right, double y) {
    fillRoundedRectangle(canvas.context, {left, y - 0.5, std::max(0.0, right - left), 0.5}, 0,
                         canvas.palette.system.separator);
}

void paintTitleBar(const Canvas& canvas, const SettingsPaneLayout& layout, const std::string& title,
                   bool isClosePressed) {
    constexpr double TitleGap = 18; // after the buttons
    paintWindowButtons(canvas, layout.closeButton, {.isClosePressed = isClosePressed});
    canvas.text.paint(
        title, {layout.closeButton.minX() + 40 + WindowButtonSide + TitleGap, middleOf(layout.titleBar)},
        {.size = 15, .weight = FontWeight::semibold, .color = canvas.palette.system.text});
}

void paintRow(const Canvas& canvas, ImageStore& images, const PaneRowPlace& place, const PaneRowPicture& row,
              bool isSwitchPressed) {
    constexpr double SelectionInset = 4;
    constexpr double NameGap = 10;
    const SystemColors& colors = canvas.palette.system;
    if (row.selected) {
        fillRoundedRectangle(canvas.context,
                             {place.area.minX() + SelectionInset, place.area.minY() + SelectionInset,
                              place.area.width() - 2 * SelectionInset,
                              place.area.height() - 2 * SelectionInset},
                             5, colors.selection);
    }
    paintApplicationIcon(canvas, images, row.iconPath, place.icon);
    const double nameLeft = place.icon.maxX() + NameGap;
    canvas.text.paint(row.name, {nameLeft, middleOf(place.area)},
                      {.size = 13,
                       .color = colors.text,
                       .maximumWidth = std::max(0.0, place.toggle.minX() - NameGap - nameLeft)});
    paintSwitch(canvas, place.toggle, {.isOn = row.isOn, .isPressed = isSwitchPressed});
}

void paintList(const Canvas& canvas, ImageStore& images, const SettingsPaneLayout& layout,
               const SettingsPanePicture& pane, const std::optional<DeskTarget>& pressed) {
    for (std::size_t index = 0; index < layout.rows.size(); ++index) {
        const PaneRowPlace& place = layout.rows[index];
        if (index > 0) {
            paintHairline(canvas, place.icon.minX(), place.toggle.maxX(), place.area.minY());
        }
        paintRow(canvas, images, place, pane.rows[index], pressed == DeskTarget{PaneSwitchTarget{index}});
    }
    if (layout.rows.empty()) {
        canvas.text.paint(
            "No Items", {layout.list.minX() + layout.list.width() / 2, middleOf(layout.list)},
            {.size = 13, .color = canvas.palette.system.detailText, .alignment = TextAlignment::center});
    }
}

} // namespace

void paintSettingsPane(const Canvas& canvas, ImageStore& images, const SettingsPaneLayout& layout,
                       const SettingsPanePicture& pane, const std::optional<DeskTarget>& pressed) {
    constexpr double BoxRadius = 7;
    const SystemColors& colors = canvas.palette.system;
    paintTitleBar(canvas, layout, pane.title, pressed == DeskTarget{PaneCloseTarget{}});

    fillRoundedRectangle(canvas.context, layout.box, BoxRadius, colors.groupBox);
    strokeRoundedRectangle(canvas.context, layout.box, BoxRadius, 0.5, colors.groupBoxEdge);
    canvas.text.paint(pane.sentence, {layout.sentence.minX(), middleOf(layout.sentence)},
                      {.size = 13, .color = colors.text, .maximumWidth = layout.sentence.width()});
    paintHairline(canvas, layout.sentence.minX(), layout.sentence.maxX(), layout.list.minY());
    paintList(canvas, images, layout, pane, pressed);

    paintHairline(canvas, layout.box.minX(), layout.box.maxX(), layout.list.maxY());
    paintListButton(canvas, layout.addButton, ListButton::add, false, false);
    paintListButton(canvas, layout.removeButton, ListButton::remove, canRemove(pane),
                    pressed == DeskTarget{PaneRemoveTarget{}});
    const double divider = (layout.addButton.maxX() + layout.removeButton.minX()) / 2;
    fillRoundedRectangle(canvas.context,
                         {divider - 0.5, layout.addButton.minY() + 4, 0.5, layout.addButton.height() - 8}, 0,
                         colors.separator);
}

} // namespace kestrune::desk
