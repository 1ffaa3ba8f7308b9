#include "desk/live/world/SystemSettings.h"

#include "desk/live/world/OtherApplication.h"
#include "desk/live/world/SystemViews.h"

namespace kestrune::desk {

void SystemSettings::openLoginItems() {
    session_.user().closePane();
    areLoginItemsOpen_ = true;
    isRowSelected_ = false;
    comeToTheFront(session_);
}

std::optional<std::string> SystemSettings::title() const {
    if (session_.accessibility().isPaneShown()) {
        return "Accessibility";
    }
    return areLoginItemsOpen_ ? std::optional<std::string>("Login Items") : std::nullopt;
}

ui::View SystemSettings::view() {
    SettingsPane pane;
    pane.sentence = showsLoginItems() ? "These applications open automatically when you log in."
                                      : "Allow the applications below to control your computer.";
    if (isListed()) {
        pane.rows.push_back({kestruneAsListed(session_), isOn(), isRowSelected_, [this] { flipSwitch(); },
                             [this] { isRowSelected_ = true; }});
    }
    pane.deselect = [this] { isRowSelected_ = false; };
    pane.remove = [this] { removeRow(); };
    return settingsPane(pane);
}

bool SystemSettings::isListed() const {
    return showsLoginItems() ? isOn() || session_.loginItem().status() == AppServiceStatus::requiresApproval
                             : session_.accessibility().isListed();
}

bool SystemSettings::isOn() const {
    return showsLoginItems() ? session_.loginItem().status() == AppServiceStatus::enabled
                             : session_.accessibility().isSwitchedOn();
}

// A row that has gone meanwhile has no switch any more.
void SystemSettings::flipSwitch() {
    if (!showsLoginItems()) {
        session_.user().flipPermissionSwitch();
    } else if (isListed()) {
        session_.user().setLoginItem(isOn() ? AppServiceStatus::requiresApproval : AppServiceStatus::enabled);
    }
}

void SystemSettings::removeRow() {
    if (showsLoginItems()) {
        session_.user().setLoginItem(AppServiceStatus::notRegistered);
    } else {
        session_.user().removePermissionRow();
    }
    isRowSelected_ = false;
}

void SystemSettings::close() {
    isRowSelected_ = false;
    areLoginItemsOpen_ = false;
    if (session_.accessibility().isPaneShown()) {
        session_.user().closePane();
    } else {
        leaveTheFront(session_);
    }
}

} // namespace kestrune::desk
