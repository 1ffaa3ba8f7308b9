// The application's menus as they must be, worked out from the rules a second time and without its code.
#pragma once

#include "platform/Menu.h"
#include "tests/random/guard/Oracle.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::simulate {

// What the bundle's string table has for each English text that it translates.
using Translations = std::map<std::string, std::string, std::less<>>;

// What the user reads.
std::string translated(const Translations& translations, std::string_view english);

struct MenuLine {
    std::string title;
    std::string_view action = {}; // the selector's name, empty for a line that does nothing
    std::string_view key = {};
    bool isEnabled = true;
    bool isMarked = false;
    bool isSeparator = false;
    EventModifierFlags modifiers = EventModifierFlags::command;

    // Of the display that the line stands for.
    std::optional<std::string> identifier = std::nullopt;

    friend bool operator==(const MenuLine&, const MenuLine&) = default;
};

// All that the status item's menu shows.
struct StatusMenuFacts {
    std::vector<KnownDisplay> displays;
    std::optional<std::string> mainIdentifier;

    // What stringForKey: answers for the choice.
    std::optional<std::string> storedChoice;

    bool isEnabled;
    bool isSetUp;
};

class MenuModel {
public:
    explicit MenuModel(Translations translations) : translations_(std::move(translations)) {}

    std::vector<MenuLine> statusMenu(const StatusMenuFacts& facts) const;

    // The menu bar's menu at that place, 0 or 1. "Settings…" is enabled while there is somebody to open them.
    std::vector<MenuLine> mainMenu(std::size_t index, bool hasDelegate) const;

    // Menus and items that the main menu is made of: three menus, their two items in the bar, and the lines.
    static constexpr int MainMenuObjects = 3 + 2 + 3 + 7;

private:
    std::string text(std::string_view english) const { return translated(translations_, english); }
    MenuLine displayLine(const KnownDisplay& display, const StatusMenuFacts& facts) const;

    Translations translations_;
};

} // namespace kestrune::simulate
