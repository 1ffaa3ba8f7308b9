#include "desk/paint/ToolTipPainter.h"

#include "desk/paint/MenuBarLayout.h"

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

std::optional<Rect> toolTipArea(TextMeasure& measure, const DeskLayout& layout, const DeskPicture& picture,
                                Size window) {
    const DisplayPlace* const place = picture.toolTip ? layout.place(picture.toolTip->display) : nullptr;
    if (!place || picture.toolTip->text.empty()) {
        return std::nullopt;
    }
    const Rect slot = anchorSlot(menuBarLayout(measure, *place, layout.scale(), picture),
                                 StatusItemAnchor{picture.toolTip->item});
    if (slot.isNull()) {
        return std::nullopt;
    }
    const double width = std::ceil(measure.width(picture.toolTip->text, textStyle())) + 2 * Padding;
    return keptInside({std::round(slot.minX() + slot.width() / 2), slot.maxY() + RoomForPointer,
                       std::max(1.0, std::min(width, window.width - 2 * PanelMargin)), Height},
                      window);
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
