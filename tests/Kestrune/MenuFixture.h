// A session with the menu bar controller in it, and what its user sees.
#pragma once

#include "Kestrune/MenuBarController.h"
#include "tests/Kestrune/ShellCalls.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace kestrune {

// One row as a line of text: "✓" when marked, the title or "---", the key, and "(disabled)".
inline std::string rowText(const sim::MenuRow& row) {
    if (row.isSeparator) {
        return "---";
    }
    std::string text = row.state == ControlState::on ? "✓" + row.title : row.title;
    if (!row.keyEquivalent.empty()) {
        text += " [" + row.keyEquivalent + "]";
    }
    return row.isEnabled ? text : text + " (disabled)";
}

inline std::vector<std::string> rowTexts(const std::vector<sim::MenuRow>& rows) {
    std::vector<std::string> texts;
    std::transform(rows.begin(), rows.end(), std::back_inserter(texts), rowText);
    return texts;
}

// Opens the menu as its user does and reads it.
inline std::vector<std::string> openedMenu(sim::Session& session) {
    session.user().openMenu(sim::StatusItemIndex{0});
    return rowTexts(session.menus().rows());
}

// Chooses the first row with that title in the menu that a rebuild left behind.
inline bool chooseRow(sim::Session& session, const std::string& title) {
    session.user().openMenu(sim::StatusItemIndex{0});
    const auto rows = session.menus().rows();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const sim::MenuRow& candidate) { return candidate.title == title; });
    return row != rows.end() && session.user().chooseRow(static_cast<std::size_t>(row - rows.begin()));
}

class MenuFixture : public ::testing::Test {
protected:
    explicit MenuFixture(sim::SessionOptions options = withDisplays({primaryDisplay(), secondDisplay()}))
        : session(std::move(options)),
          preferences(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())),
          dockGuard(std::make_shared<DockGuardController>()) {
        dockGuard->setPreferences(preferences);
        session.journal().take();
    }

    ~MenuFixture() override { dockGuard->stop(); }

    void store(std::string_view key, std::optional<sim::PropertyList> value) {
        session.defaults().set(key, std::move(value));
    }

    const sim::PropertyList* stored(std::string_view key) { return session.defaults().find(key); }

    void completeSetup() { store(entries::HasCompletedOnboarding, sim::PropertyList{true}); }

    void make() {
        controller = MenuBarController::make(
            preferences, dockGuard,
            {.openSettings = [this] { ++settingsOpenings; }, .openWelcome = [this] { ++welcomeOpenings; }});
    }

    // The menu as of now.
    std::vector<std::string> menu() {
        controller->rebuildMenu();
        std::vector<std::string> rows = openedMenu(session);
        session.user().closeMenu();
        return rows;
    }

    std::vector<std::string> freshMenu() {
        make();
        return menu();
    }

    sim::Session session;
    std::shared_ptr<Preferences> preferences;
    std::shared_ptr<DockGuardController> dockGuard;
    std::shared_ptr<MenuBarController> controller;
    int settingsOpenings = 0;
    int welcomeOpenings = 0;
};

} // namespace kestrune
