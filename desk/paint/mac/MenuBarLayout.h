// Where the parts of a display's menu bar stand, in global display coordinates, for painting and for the
// pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/TextMeasure.h"

#include <cstddef>
#include <vector>

namespace kestrune::desk {

// At the top of the display.
Rect menuBarArea(const Rect& display);

// The slot is what a press hits and what is highlighted under an open menu.
struct StatusItemPlace {
    Rect slot;
    Rect image;

    friend bool operator==(const StatusItemPlace&, const StatusItemPlace&) = default;
};

struct MenuBarLayout {
    Rect area;
    Point mark; // centre of the dot at the leading end
    // The slots of the titles that have room, from the first.
    std::vector<Rect> titles;
    std::size_t openableTitles = 0; // how many of them a menu can hang from
    // One for each status item; an item without room has null rectangles. The last keep their place longest.
    std::vector<StatusItemPlace> statusItems;
    Point clock; // trailing end, halfway up
    double clockWidth = 0;
};

MenuBarLayout menuBarLayout(TextMeasure& measure, const Rect& display, const DeskPicture& picture);

// The titles that the menu bars show: the application's own or, without any, those of another.
const std::vector<std::string>& menuBarTitles(const DeskPicture& picture);

// The slot that the menu with this anchor hangs from; null when the bar does not show it.
Rect anchorSlot(const MenuBarLayout& layout, const MenuAnchor& anchor);

// How the bar's texts are set; the colour is left to the painter.
TextStyle menuBarTitleStyle(std::size_t title);
TextStyle clockStyle();

} // namespace kestrune::desk
