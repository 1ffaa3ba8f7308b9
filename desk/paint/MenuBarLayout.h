// Where the parts of a display's menu bar stand, in window coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/TextMeasure.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kestrune::desk {

// On a display, in points.
inline constexpr double MenuBarHeight = 24;

// At the top of the screen. To scale where that is large enough to be read.
Rect menuBarArea(const DisplayPlace& place, double scale);

// The slot is what a press hits and what is highlighted under an open menu.
struct StatusItemPlace {
    Rect slot;
    Rect image;

    friend bool operator==(const StatusItemPlace&, const StatusItemPlace&) = default;
};

struct MenuBarLayout {
    Rect area;
    Point mark; // centre of the dot at the leading end
    double markRadius = 0;
    // The slots of the titles that have room, from the first.
    std::vector<Rect> titles;
    // One for each status item; an item without room has null rectangles. The last keep their place longest.
    std::vector<StatusItemPlace> statusItems;
    Point clock; // trailing end, halfway up
    // False on a display that is drawn too small for text. Its bar has neither titles nor status items.
    bool isLegible = false;
};

MenuBarLayout menuBarLayout(TextMeasure& measure, const DisplayPlace& place, double scale,
                            const DeskPicture& picture);

// The slot that the menu with this anchor hangs from; null when the bar does not show it.
Rect anchorSlot(const MenuBarLayout& layout, const MenuAnchor& anchor);

// How the bar's texts are set; the colour is left to the painter.
TextStyle menuBarTitleStyle(const MenuBarLayout& layout, std::size_t title);
TextStyle clockStyle(const Rect& menuBar);

} // namespace kestrune::desk
