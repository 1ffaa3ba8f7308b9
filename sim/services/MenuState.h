// What menus and their items are in the simulation.
#pragma once

#include "platform/Menu.h"
#include "sim/services/LiveObject.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrune {

struct MenuItem::State {
    std::string title;
    std::optional<Selector> action;
    std::string keyEquivalent;
    EventModifierFlags modifiers = EventModifierFlags::command;
    std::weak_ptr<Object> target;
    std::optional<Menu> submenu;
    std::optional<RepresentedObject> representedObject;
    ControlState control = ControlState::off;
    bool isEnabled = true;
    bool isSeparator = false;
    sim::LiveObject object{"menu item", sim::LiveObject::Release::unrecorded};
};

struct Menu::State {
    std::string title;
    bool autoenablesItems = true;
    std::vector<MenuItem> items;
    std::weak_ptr<MenuDelegate> delegate;
    sim::LiveObject object{"menu", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
