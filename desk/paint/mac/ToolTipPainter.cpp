#include "desk/paint/mac/ToolTipPainter.h"

#include "desk/paint/mac/MenuBarLayout.h"
#include "desk/paint/mac/MenuLayout.h"
#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double Height = 20;
constexpr double Padding = 7;
constexpr double LongestText = 320;
constexpr double RoomForPointer = 20;

TextStyle textStyle() { return {.size = 11, .maximumWidth = LongestText}; }

} // namespace

std::optional<Rect> toolTipArea(TextMeasure& measure, const DeskPicture& picture) {
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
    const double width = std::ceil(measure.width(picture.toolTip->text, textStyle())) + 2 * Padding;
    return hangingOn(display, {std::round(centerOf(slot).x), slot.maxY() + RoomForPointer},
                     {std::min(width, display.width()), Height});
}

PanelStyle toolTipPanelStyle(const Palette& palette) {
    return {.color = palette.system.toolTipPanel, .cornerRadius = 3.5, .shadowBlur = 9, .shadowDrop = 3};
}

void paintToolTip(const Canvas& canvas, const Rect& area, std::string_view text) {
    TextStyle style = textStyle();
    style.color = canvas.palette.system.text;
    // One more than the room, against rounding in the measured width.
    style.maximumWidth = std::max(0.0, area.width() - 2 * Padding) + 1;
    canvas.text.paint(text, {area.minX() + Padding, area.minY() + area.height() / 2}, style);
}

} // namespace kestrune::desk
