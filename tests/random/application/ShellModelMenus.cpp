// What the user does at the menus, and what it must come to.
#include "tests/random/application/ShellModel.h"

#include <algorithm>
#include <utility>

namespace kestrune::simulate {

namespace {

bool isStatusItem(const sim::MenuPlace& place) { return std::holds_alternative<sim::StatusItemIndex>(place); }

} // namespace

std::vector<std::string> ShellModel::mainMenuTitles() const {
    if (!process_ || !process_->windows.isActive() || !process_->isRegular) {
        return {};
    }
    return {"Kestrune", "Edit"};
}

std::vector<MenuLine> ShellModel::openLines() const {
    if (!process_ || !process_->open) {
        return {};
    }
    const OpenMenuModel& open = *process_->open;
    return isStatusItem(open.place)
               ? open.statusLines
               : menus_.mainMenu(std::get<sim::MainMenuIndex>(open.place).value, process_->hasDelegate);
}

bool ShellModel::openMenu(const sim::MenuPlace& place) {
    closeMenu();
    if (!isStatusItem(place)) {
        if (std::get<sim::MainMenuIndex>(place).value >= mainMenuTitles().size()) {
            return false;
        }
        counts_.add(Happening::mainMenusOpened);
        process_->open = OpenMenuModel{place, {}};
        thread_.pauseTimers();
        return true;
    }
    if (!process_ || !process_->hasController || std::get<sim::StatusItemIndex>(place).value > 0) {
        return false;
    }
    counts_.add(Happening::menusOpened);
    process_->open = OpenMenuModel{place, process_->statusMenu};
    thread_.pauseTimers();
    if (isTrusted() && !process_->guardRuns && process_->hasDelegate) {
        counts_.add(Happening::permissionsFoundByTheMenu);
        startIfAllowed();
        endWatcher(Happening::watchersEndedByTheMenu);
    }
    rebuild();
    return true;
}

// What fell due while the menu was open happens now.
void ShellModel::closeMenu() {
    if (process_ && process_->open) {
        process_->open.reset();
        thread_.resumeTimers();
    }
}

bool ShellModel::choose(std::size_t row) {
    const std::vector<MenuLine> lines = openLines();
    if (row >= lines.size() || lines[row].isSeparator || !lines[row].isEnabled) {
        return false;
    }
    return finishTracking(lines[row], !isStatusItem(process_->open->place));
}

bool ShellModel::press(std::string_view key, EventModifierFlags modifiers) {
    if (!process_ || (!process_->open && !process_->windows.isActive())) {
        return false;
    }
    const bool inMainMenu = !process_->open || !isStatusItem(process_->open->place);
    std::vector<MenuLine> lines = openLines();
    if (!process_->open) {
        lines = menus_.mainMenu(0, process_->hasDelegate);
        const std::vector<MenuLine> edit = menus_.mainMenu(1, process_->hasDelegate);
        lines.insert(lines.end(), edit.begin(), edit.end());
    }
    const auto line = std::find_if(lines.begin(), lines.end(), [&](const MenuLine& candidate) {
        return !candidate.isSeparator && candidate.isEnabled && candidate.key == key &&
               candidate.modifiers == modifiers;
    });
    return line != lines.end() && finishTracking(*line, inMainMenu);
}

bool ShellModel::finishTracking(const MenuLine& line, bool inMainMenu) {
    counts_.add(Happening::linesChosen);
    std::optional<OpenMenuModel> closed = std::exchange(process_->open, std::nullopt);
    const bool reached = act(line, inMainMenu);
    if (process_ && closed) {
        thread_.resumeTimers();
    }
    return reached;
}

bool ShellModel::act(const MenuLine& line, bool inMainMenu) {
    if (inMainMenu) {
        if (line.action == "terminate:") {
            counts_.add(Happening::quitsFromTheMainMenu);
            quit();
        } else if (line.action == "menuOpenSettings") {
            openSettings();
        }
        return true;
    }
    if (!process_->hasDelegate) {
        counts_.add(Happening::chosenForADelegateThatIsGone);
    }
    if (!process_->hasController) {
        return false;
    }
    if (line.action == "quit") {
        counts_.add(Happening::quitsFromTheStatusMenu);
        quit();
    } else if (line.action == "toggleEnabled") {
        toggle();
    } else if (line.action == "selectScreen:") {
        select(*line.identifier);
    } else if (line.action == "showWelcome" && process_->hasDelegate) {
        showWelcome();
    } else if (line.action == "showSettings" && process_->hasDelegate) {
        openSettingsWindow();
    }
    return true;
}

void ShellModel::toggle() {
    const bool isOnNow = !entries_.isEnabled.reading;
    counts_.add(isOnNow ? Happening::switchesOn : Happening::switchesOff);
    store(StoredSwitch{sim::PropertyList{isOnNow}, isOnNow});
    if (isOnNow) {
        startIfAllowed();
    } else {
        stop();
    }
    rebuild();
}

void ShellModel::select(const std::string& identifier) {
    counts_.add(Happening::displaysSelected);
    store(choiceOf(identifier));
    refresh();
    rebuild();
}

} // namespace kestrune::simulate
