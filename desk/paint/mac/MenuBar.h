// The menu bar of a display: mark, titles, status items and the clock. Places are in global display
// coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/mac/SystemPicture.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kestrune::desk {

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

MenuBarLayout menuBarLayout(TextPainter& measure, const Rect& display, const MacPicture& picture);

// The titles that the menu bars show: the application's own or, without any, those of another.
const std::vector<std::string>& menuBarTitles(const MacPicture& picture);

// The slot that the menu with this anchor hangs from; null when the bar does not show it.
Rect anchorSlot(const MenuBarLayout& layout, const MenuAnchor& anchor);

void paintMenuBar(const Canvas& canvas, const MenuBarLayout& layout, const MacPicture& picture,
                  std::size_t display);

} // namespace kestrune::desk
