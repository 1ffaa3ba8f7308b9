// Where the open menu and its rows stand, in global display coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/TextMeasure.h"

#include <optional>
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
std::optional<MenuLayout> menuLayout(TextMeasure& measure, const DeskPicture& picture);

// What hangs below a menu bar with its upper left corner at a place, moved left by as little as it takes to
// stay on the display.
Rect hangingOn(const Rect& display, Point corner, Size size);

// The colour is left to the painter.
TextStyle menuTextStyle();

} // namespace kestrune::desk
