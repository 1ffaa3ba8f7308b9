// What a user sees of the application's menus and of its icon in the menu bar.
#pragma once

#include "platform/Menu.h"
#include "platform/StatusBar.h"

#include <optional>
#include <string>

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

} // namespace kestrune::contract
