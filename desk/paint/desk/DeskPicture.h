// Everything that one picture of the desk shows, as plain data.
//
// All locations are in global display coordinates: points, origin at the top left of the primary display, y
// downwards.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/SystemPicture.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

struct DisplayPicture {
    std::string name;
    Rect bounds;
    bool pinned = false;
    // Top of the strip above the bottom edge that the guard keeps the pointer out of; absent on a display
    // that may have the Dock.
    std::optional<double> bandTop;
    // Any number. It picks the wallpaper, so it should stay with a display while others come and go.
    std::size_t wallpaper = 0;

    friend bool operator==(const DisplayPicture&, const DisplayPicture&) = default;
};

enum class GuardState { on, off, noPermission };

// The kind of thing that happened last; it decides the colour of the mark beside the text.
enum class Occurrence { neutral, held, dockMoved, warning };

// One key and what pressing it does.
struct KeyHint {
    std::string key;
    std::string action;

    friend bool operator==(const KeyHint&, const KeyHint&) = default;
};

// A place where the guard held the pointer. Age 0 is just now; at 1 the mark has faded.
struct HeldMark {
    Point location;
    double age = 0;

    friend bool operator==(const HeldMark&, const HeldMark&) = default;
};

// A move of the Dock between two displays, given as indices. Age 0 is just now; at 1 the mark has faded.
struct DockMoveMark {
    std::size_t from = 0;
    std::size_t to = 0;
    double age = 0;

    friend bool operator==(const DockMoveMark&, const DockMoveMark&) = default;
};

struct DeskPicture {
    std::vector<DisplayPicture> displays;
    // Index of the display that shows the Dock.
    std::optional<std::size_t> dockDisplay;
    // What is to be seen of the displays, at no more than 100 %: one logical pixel for each point. Absent:
    // all of them.
    std::optional<Rect> shown;
    Point pointer;

    GuardState guard = GuardState::off;
    std::string whatHappened;
    Occurrence occurrence = Occurrence::neutral;
    std::uint64_t events = 0;
    std::uint64_t held = 0;
    std::uint64_t dockMoves = 0;
    std::vector<KeyHint> keys;

    std::optional<HeldMark> heldMark;
    std::optional<DockMoveMark> dockMoveMark;

    // Text at the trailing end of each menu bar.
    std::string clock;
    // In the order of the menu bar; the last is next to the clock.
    std::vector<StatusItemPicture> statusItems;
    // The first is the application's name. Empty while the application has no main menu or is not the active
    // one: then the menu bars have the titles of another.
    std::vector<std::string> mainMenuTitles;
    std::vector<std::string> otherMenuTitles = {"Finder", "File", "Edit", "View", "Go", "Window", "Help"};
    // A PNG file, while the application has a place in the Dock.
    std::optional<std::string> dockIcon;

    std::optional<MenuPicture> menu;
    std::optional<ToolTipPicture> toolTip;
    // The application's and the system's, from front to back.
    std::vector<WindowPicture> windows;
    // Those that are tiles in the Dock instead, from left to right.
    std::vector<WindowPicture> miniaturized;

    // A sentence above the displays that tells what the picture is about; may be empty.
    std::string story;
    bool dark = false;

    friend bool operator==(const DeskPicture&, const DeskPicture&) = default;
};

} // namespace kestrune::desk
