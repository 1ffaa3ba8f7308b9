// What a user sees of the application's menus, of its icon in the menu bar and of its windows.
#pragma once

#include "platform/Menu.h"
#include "platform/StatusBar.h"
#include "platform/Window.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::contract {

// One row of an open menu. A separator has no title and is not enabled.
struct ShownRow {
    std::string title;
    ControlState state = ControlState::off;
    bool isEnabled = true;
    bool isSeparator = false;
    std::string keyEquivalent;
    EventModifierFlags modifiers = EventModifierFlags::command;
};

struct ShownImage {
    std::string name;
    bool isTemplate = false;
    std::optional<Size> size; // Points; absent: as its file says.
};

struct ShownButton {
    std::optional<ShownImage> image;
    ImageScaling scaling = ImageScaling::proportionallyDown;
    std::string toolTip;
};

// From 0 to 255.
struct SeenColor {
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const SeenColor&, const SeenColor&) = default;
};

// What VoiceOver makes of an element of a view: it reads the text, or passes over the element.
struct AccessibleElement {
    enum class Role { text, image, shape, button, toggle };

    Role role = Role::text;
    std::string text;
    bool isReadOut = true;

    friend bool operator==(const AccessibleElement&, const AccessibleElement&) = default;
};

struct ShownWindow {
    std::string title;
    Rect content; // AppKit screen coordinates.
    WindowLevel level = WindowLevel::normal;
    bool isKey = false;
    bool hasCloseButton = false;
    bool isResizable = false;
    bool joinsAllSpaces = false;

    // Of the view that it hosts, from the first that is read out to the last.
    std::vector<std::string> texts;
    std::vector<std::string> buttons;

    // On, off: of every switch.
    std::vector<bool> switches;

    std::vector<AccessibleElement> elements;
};

} // namespace kestrune::contract
