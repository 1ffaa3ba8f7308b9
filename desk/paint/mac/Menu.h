// What hangs below a menu bar: the open menu, and the tool tip of a status item. Places are in global display
// coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/PanelPainter.h"
#include "desk/paint/mac/SystemPicture.h"

#include <optional>
#include <string_view>
#include <vector>

namespace kestrune::desk {

struct MenuLayout {
    Rect panel;
    // One for each row, across the panel. Rows that the display has no room for are null rectangles.
    std::vector<Rect> rows;
    double checkLeft = 0; // leading edge of the column of check marks
    double titleLeft = 0;
    double trailing = 0; // trailing end of key equivalents
    bool hasMore = false;
};

inline constexpr double MenuSelectionInset = 5;

// Absent without an open menu, and when the picture does not show what the menu hangs from. Otherwise on the
// display whose menu bar it hangs from: where it would reach beyond the edge it hangs further left.
std::optional<MenuLayout> menuLayout(TextPainter& measure, const MacPicture& picture);

PanelStyle menuPanelStyle(const Palette& palette);

// The rows; the panel is not painted with them.
void paintMenu(const Canvas& canvas, const MenuLayout& layout, const MenuPicture& menu);

// Clear of a pointer that rests on the status item. Absent without a tool tip, and when the picture does not
// show the item.
std::optional<Rect> toolTipArea(TextPainter& measure, const MacPicture& picture);

PanelStyle toolTipPanelStyle(const Palette& palette);

// The text; the panel is not painted with it.
void paintToolTip(const Canvas& canvas, const Rect& area, std::string_view text);

} // namespace kestrune::desk
