// The parts of a Mac's screen that an application of the menu bar lives in, as plain data: displays, status
// items, menus, tool tips and windows, its own and those of the system.
//
// All locations are in global display coordinates: points, origin at the top left of the primary display, y
// downwards.
#pragma once

#include "base/Geometry.h"
#include "sim/services/WindowLook.h"
#include "ui/Scene.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {

// Every menu bar shows it, before the clock.
struct StatusItemPicture {
    // A PNG file. The item keeps its place in the menu bar without one, and with one that cannot be read.
    std::optional<std::string> imagePath = std::nullopt;
    Size imageSize{18, 18}; // in points, as the height of a menu bar is
    // Whether only the image's opacity counts, and it takes the colour of the menu bar's text.
    bool isTemplate = true;
    // For whoever fills in the tool tip; the item itself does not show it.
    std::string toolTip = {};

    friend bool operator==(const StatusItemPicture&, const StatusItemPicture&) = default;
};

// What a menu hangs from.
struct StatusItemAnchor {
    std::size_t item = 0;

    friend bool operator==(const StatusItemAnchor&, const StatusItemAnchor&) = default;
};
struct MainMenuTitleAnchor {
    std::size_t title = 0;

    friend bool operator==(const MainMenuTitleAnchor&, const MainMenuTitleAnchor&) = default;
};
using MenuAnchor = std::variant<StatusItemAnchor, MainMenuTitleAnchor>;

enum class MenuRowKind { item, separator };

struct MenuRowPicture {
    MenuRowKind kind = MenuRowKind::item;
    std::string title = {}; // spaces at its beginning indent it
    bool marked = false;
    bool enabled = true;
    bool highlighted = false;       // has no effect on a disabled row
    std::string keyEquivalent = {}; // ready to be shown, as in "⇧⌘Z"

    friend bool operator==(const MenuRowPicture&, const MenuRowPicture&) = default;
};

// The open menu.
struct MenuPicture {
    std::size_t display = 0; // index of the display whose menu bar it hangs from
    MenuAnchor anchor = StatusItemAnchor{};
    std::vector<MenuRowPicture> rows = {};

    friend bool operator==(const MenuPicture&, const MenuPicture&) = default;
};

// A tool tip below a status item.
struct ToolTipPicture {
    std::size_t display = 0;
    std::size_t item = 0;
    std::string text = {};

    friend bool operator==(const ToolTipPicture&, const ToolTipPicture&) = default;
};

// A switch whose knob is under way.
struct MovingSwitch {
    std::size_t element = 0; // of the window's scene
    double position = 0;     // of the knob, from 0, off, to 1, on

    friend bool operator==(const MovingSwitch&, const MovingSwitch&) = default;
};

using sim::WindowLook;

struct WindowPicture {
    std::size_t number = 0; // stays with the window while others come and go
    Rect frame = {};        // with the title bar, in global display coordinates
    std::string title = {};
    double titleBarHeight = 0; // not positive: the window has no title bar
    bool isClosable = true;
    bool isMiniaturizable = false;
    bool isResizable = false;
    bool isKey = false; // receives the keys
    WindowLook look = WindowLook::standard;
    ui::Scene scene = {};

    // Indices into the scene's elements.
    std::optional<std::size_t> pressedElement = std::nullopt;
    std::optional<std::size_t> focusedElement = std::nullopt;
    std::optional<MovingSwitch> movingSwitch = std::nullopt;
    bool isCloseButtonPressed = false;
    bool isCloseButtonHovered = false;
    bool isMinimizeButtonPressed = false;
    bool isMinimizeButtonHovered = false;

    bool isTitled() const { return titleBarHeight > 0; }

    friend bool operator==(const WindowPicture&, const WindowPicture&) = default;
};

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

// All that is on the displays.
struct MacPicture {
    std::vector<DisplayPicture> displays;
    // Index of the display that shows the Dock.
    std::optional<std::size_t> dockDisplay;
    Point pointer;

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

    bool dark = false;

    friend bool operator==(const MacPicture&, const MacPicture&) = default;
};

} // namespace kestrune::desk
