// Where the open menu and its rows stand, in window coordinates, for painting and for the pointer.
//
// Menus are not drawn to the displays' scale: they keep the size in which they can be read.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/TextMeasure.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

struct MenuLayout {
    Rect panel;
    // One for each row, across the panel. Rows that a small window has no room for are null rectangles.
    std::vector<Rect> rows;
    double checkLeft = 0; // leading edge of the column of check marks
    double titleLeft = 0;
    double trailing = 0; // trailing end of key equivalents
    bool hasMore = false;

    friend bool operator==(const MenuLayout&, const MenuLayout&) = default;
};

inline constexpr double MenuSelectionInset = 5;

// Absent without an open menu, and when the picture does not show what the menu hangs from.
std::optional<MenuLayout> menuLayout(TextMeasure& measure, const DeskLayout& layout,
                                     const DeskPicture& picture, Size window);

// The colour is left to the painter.
TextStyle menuTextStyle();

} // namespace kestrune::desk
