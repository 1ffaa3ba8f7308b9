#include "replay/ApplicationHost.h"

#include "replay/StoredChoices.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrune::replay {

namespace {

constexpr sim::StatusItemIndex Kestrune{0};

// Where the rows of the displays begin: behind the heading, which is the first row that cannot be chosen and
// separates nothing.
std::optional<std::size_t> firstDisplayRow(const std::vector<sim::MenuRow>& rows) {
    const auto heading = std::find_if(
        rows.begin(), rows.end(), [](const sim::MenuRow& row) { return !row.isEnabled && !row.isSeparator; });
    return heading != rows.end() ? std::optional(static_cast<std::size_t>(heading - rows.begin()) + 1)
                                 : std::nullopt;
}

} // namespace

ApplicationHost::ApplicationHost(sim::Session& session) : session_(session) { launch(); }

ApplicationHost::~ApplicationHost() { session_.user().endApplication(); }

void ApplicationHost::launch() {
    if (!app_) {
        app_ = runKestrune();
        session_.advance(sim::Duration::zero());
    }
}

void ApplicationHost::noticeEnd() {
    if (!session_.application().exists) {
        app_.reset();
    }
}

// A menu shows what it was built for before it was opened, and is built again when it opens.
bool ApplicationHost::openFreshMenu() {
    session_.user().openMenu(Kestrune);
    return session_.user().openMenu(Kestrune);
}

bool ApplicationHost::chooseDisplay(DisplayID number) {
    if (!openFreshMenu()) {
        return false;
    }
    const auto& displays = session_.displays().connected();
    const auto display =
        std::find_if(displays.begin(), displays.end(),
                     [number](const sim::Display& candidate) { return candidate.displayID == number; });
    const auto firstRow = firstDisplayRow(session_.menus().rows());
    const bool isChosen =
        display != displays.end() && firstRow &&
        session_.user().chooseRow(*firstRow + static_cast<std::size_t>(display - displays.begin()));
    session_.user().closeMenu();
    return isChosen;
}

bool ApplicationHost::flipSwitch() {
    // Before the setup is complete the switch leads to the wizard.
    const StoredChoices choices(session_.defaults());
    const bool wasEnabled = choices.isEnabled();
    choose(wasEnabled ? "Disable" : "Enable");
    return choices.isEnabled() != wasEnabled;
}

bool ApplicationHost::quit() {
    const bool isChosen = choose("Quit");
    noticeEnd();
    return isChosen;
}

bool ApplicationHost::askForPermission() {
    if (!app_) {
        return false;
    }
    app_->menuBarController()->openAccessibilitySettings();
    return true;
}

bool ApplicationHost::choose(const std::string& title) {
    if (!openFreshMenu()) {
        return false;
    }
    const auto rows = session_.menus().rows();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const sim::MenuRow& candidate) { return candidate.title == title; });
    const bool isChosen =
        row != rows.end() && session_.user().chooseRow(static_cast<std::size_t>(row - rows.begin()));
    session_.user().closeMenu();
    return isChosen;
}

} // namespace kestrune::replay
