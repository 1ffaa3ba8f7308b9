// The menus while they are tracked: one at a time is open, and its items are chosen by hand or by key.
//
// Source: docs/MAC_FACTS.md, "Menus".
#pragma once

#include "platform/Menu.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::sim {

class Journal;
class StatusItems;
class Timers;
struct ApplicationState;
struct BundleContents;

// One row as the user sees it.
struct MenuRow {
    std::string title;
    ControlState state = ControlState::off;
    bool isEnabled = true;
    bool isSeparator = false;
    std::string keyEquivalent;
    EventModifierFlags modifiers = EventModifierFlags::command;

    friend bool operator==(const MenuRow&, const MenuRow&) = default;
};

// Each by its place, from 0.
struct StatusItemIndex {
    std::size_t value = 0;
    friend bool operator==(const StatusItemIndex&, const StatusItemIndex&) = default;
};
struct MainMenuIndex {
    std::size_t value = 0;
    friend bool operator==(const MainMenuIndex&, const MainMenuIndex&) = default;
};
using MenuPlace = std::variant<StatusItemIndex, MainMenuIndex>;

class MenuTracking {
public:
    // All of them must outlive the tracking.
    MenuTracking(const ApplicationState& application, const StatusItems& statusItems,
                 const BundleContents& bundle, Timers& timers, Journal& journal)
        : application_(application),
          statusItems_(statusItems),
          bundle_(bundle),
          timers_(timers),
          journal_(journal) {}

    // What the user sees: where the open menu hangs, absent while none is open; its rows from the top, none
    // while none is open; the titles in the menu bar while the application is regular and active, of which
    // its own name is the first.
    const std::optional<MenuPlace>& place() const { return place_; }
    std::vector<MenuRow> rows() const;
    std::vector<std::string> mainMenuTitles() const;

    // Where the user's actions arrive, the four below. The menu there opens; one that is open closes before.
    // Tells the menu's delegate. The menu that shows is the one that was there when it was opened. False when
    // there is none.
    bool open(const MenuPlace& place);

    // Closes the menu and sends the action of the row; does nothing for a separator and a disabled row. True
    // when an action reached somebody.
    bool choose(std::size_t row);

    // Without choosing anything.
    void close();

    // Command and the like with a character: an item of the open menu, or of the main menu when none is open
    // and the application is active, is chosen. True when an action reached somebody.
    bool press(std::string_view keyEquivalent, EventModifierFlags modifiers);

private:
    std::optional<Menu> menuAt(const MenuPlace& place) const;
    bool isEnabled(const Menu& menu, const MenuItem& item) const;
    bool endWith(const MenuItem& chosen);
    bool sendAction(const MenuItem& item);
    std::optional<MenuItem> itemFor(const Menu& menu, std::string_view keyEquivalent,
                                    EventModifierFlags modifiers) const;

    const ApplicationState& application_;
    const StatusItems& statusItems_;
    const BundleContents& bundle_;
    Timers& timers_;
    Journal& journal_;
    std::optional<Menu> menu_;
    std::optional<MenuPlace> place_;
};

} // namespace kestrune::sim
