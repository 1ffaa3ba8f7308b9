#include "tests/random/application/MenuModel.h"

#include <cmath>
#include <cstdio>

namespace kestrune::simulate {

namespace {

const MenuLine Separator{.title = "", .isSeparator = true};

std::string sizeText(const KnownDisplay& display) {
    char text[64];
    std::snprintf(text, sizeof text, "%.0f\xC3\x97%.0f", std::floor(display.bounds.size.width),
                  std::floor(display.bounds.size.height));
    return text;
}

bool isMarked(const KnownDisplay& display, const StatusMenuFacts& facts) {
    if (facts.storedChoice) {
        return display.identifier == *facts.storedChoice;
    }
    if (facts.mainIdentifier) {
        return display.identifier == *facts.mainIdentifier;
    }
    return display.identifier == facts.displays[0].identifier;
}

MenuLine deadEditLine(const char* title, std::string_view action, std::string_view key) {
    return {.title = title, .action = action, .key = key, .isEnabled = false};
}

} // namespace

std::string translated(const Translations& translations, std::string_view english) {
    const auto translation = translations.find(english);
    return translation == translations.end() ? std::string(english) : translation->second;
}

MenuLine MenuModel::displayLine(const KnownDisplay& display, const StatusMenuFacts& facts) const {
    MenuLine line;
    line.title = "  " + display.name + "  (" + sizeText(display) + ")";
    if (facts.mainIdentifier == display.identifier) {
        line.title += "  (" + text("Main") + ")";
    }
    line.action = "selectScreen:";
    line.isEnabled = facts.isSetUp;
    line.isMarked = isMarked(display, facts);
    line.identifier = display.identifier;
    return line;
}

std::vector<MenuLine> MenuModel::statusMenu(const StatusMenuFacts& facts) const {
    const std::string_view wizard = "showWelcome";
    std::vector<MenuLine> lines;
    if (!facts.isSetUp) {
        lines.push_back({.title = text("Complete setup\xE2\x80\xA6"), .action = wizard});
        lines.push_back(Separator);
    }
    lines.push_back({.title = text("Pin Dock to:"), .isEnabled = false});
    for (const KnownDisplay& display : facts.displays) {
        lines.push_back(displayLine(display, facts));
    }
    lines.push_back(Separator);
    lines.push_back({.title = facts.isEnabled ? text("Disable") : text("Enable"),
                     .action = facts.isSetUp ? "toggleEnabled" : wizard});
    lines.push_back(Separator);
    lines.push_back({.title = text("Settings\xE2\x80\xA6"),
                     .action = facts.isSetUp ? "showSettings" : wizard,
                     .key = ","});
    lines.push_back({.title = text("Quit"), .action = "quit", .key = "q"});
    return lines;
}

std::vector<MenuLine> MenuModel::mainMenu(std::size_t index, bool hasDelegate) const {
    if (index == 0) {
        return {{.title = text("Settings\xE2\x80\xA6"),
                 .action = "menuOpenSettings",
                 .key = ",",
                 .isEnabled = hasDelegate},
                Separator,
                {.title = text("Quit Kestrune"), .action = "terminate:", .key = "q"}};
    }
    // Without a window nobody edits anything.
    MenuLine redo = deadEditLine("Redo", "redo:", "z");
    redo.modifiers = EventModifierFlags::shift | EventModifierFlags::command;
    return {deadEditLine("Undo", "undo:", "z"),
            redo,
            Separator,
            deadEditLine("Cut", "cut:", "x"),
            deadEditLine("Copy", "copy:", "c"),
            deadEditLine("Paste", "paste:", "v"),
            deadEditLine("Select All", "selectAll:", "a")};
}

} // namespace kestrune::simulate
