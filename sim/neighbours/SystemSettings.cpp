#include "sim/neighbours/SystemSettings.h"

#include "sim/neighbours/NeighbourViews.h"

namespace kestrune::sim {

void SystemSettings::openLoginItems() {
    session_.user().closePane();
    areLoginItemsOpen_ = true;
    isRowSelected_ = false;
}

std::optional<std::string> SystemSettings::title() const {
    if (session_.accessibility().isPaneShown()) {
        return "Accessibility";
    }
    return areLoginItemsOpen_ ? std::optional<std::string>("Login Items") : std::nullopt;
}

ui::View SystemSettings::view() {
    SettingsPane pane;
    pane.chapter = showsLoginItems() ? "General" : "Privacy & Security";
    pane.sentence = showsLoginItems() ? "These applications open automatically when you log in."
                                      : "Allow the applications below to control your computer.";
    if (isListed()) {
        pane.rows.push_back({listedApplication(session_.bundle()), isOn(), isRowSelected_,
                             [this] { flipSwitch(); }, [this] { isRowSelected_ = true; }});
    }
    pane.deselect = [this] { isRowSelected_ = false; };
    pane.remove = [this] { removeRow(); };
    return settingsPane(pane);
}

std::string SystemSettings::facts() const {
    return title().value_or("") + (isListed() ? " listed" : "") + (isOn() ? " on" : "") +
           (isRowSelected_ ? " selected" : "");
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

bool SystemSettings::close() {
    const bool wasLedTo = session_.accessibility().isPaneShown();
    isRowSelected_ = false;
    areLoginItemsOpen_ = false;
    if (wasLedTo) {
        session_.user().closePane();
    }
    return wasLedTo;
}

} // namespace kestrune::sim
