// The tool tip of a status item.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/toolkit/Canvas.h"
#include "desk/paint/toolkit/TextMeasure.h"

#include <optional>
#include <string_view>

namespace kestrune::desk {

// In global display coordinates, clear of a pointer that rests on the status item. Absent without a tool tip,
// and when the picture does not show the item.
std::optional<Rect> toolTipArea(TextMeasure& measure, const DeskPicture& picture);

PanelStyle toolTipPanelStyle(const Palette& palette);

// The text; the panel is not painted with it.
void paintToolTip(const Canvas& canvas, const Rect& area, std::string_view text);

} // namespace kestrune::desk
