#include "desk/live/world/SystemSettings.h"

#include "desk/live/world/OtherApplication.h"

#include <variant>

namespace kestrune::desk {

namespace {

constexpr const char* ListedApplication = "Kestrune";

} // namespace

void SystemSettings::openLoginItems() {
    session_.accessibility().closePane();
    areLoginItemsOpen_ = true;
    isRowSelected_ = false;
    comeToTheFront(session_);
}

void SystemSettings::act(const DeskTarget& target) {
    if (std::holds_alternative<PaneSwitchTarget>(target)) {
        flipSwitch();
    } else if (std::holds_alternative<PaneRowTarget>(target)) {
        isRowSelected_ = true;
    } else if (std::holds_alternative<PaneRemoveTarget>(target)) {
        removeRow();
    } else if (std::holds_alternative<PaneCloseTarget>(target)) {
        close();
    } else if (std::holds_alternative<PaneTarget>(target)) {
        isRowSelected_ = false;
    }
}

bool SystemSettings::isLoginItem() const {
    const AppServiceStatus status = session_.loginItem().status();
    return status == AppServiceStatus::enabled || status == AppServiceStatus::requiresApproval;
}

void SystemSettings::flipSwitch() {
    if (!showsLoginItems()) {
        session_.accessibility().flipSwitch();
    } else if (isLoginItem()) {
        const bool isAllowed = session_.loginItem().status() == AppServiceStatus::enabled;
        session_.loginItem().setStatus(isAllowed ? AppServiceStatus::requiresApproval
                                                 : AppServiceStatus::enabled);
    }
}

void SystemSettings::removeRow() {
    if (showsLoginItems()) {
        session_.loginItem().setStatus(AppServiceStatus::notRegistered);
    } else {
        session_.accessibility().removeRow();
    }
    isRowSelected_ = false;
}

void SystemSettings::close() {
    isRowSelected_ = false;
    areLoginItemsOpen_ = false;
    if (session_.accessibility().isPaneShown()) {
        session_.accessibility().closePane();
    } else {
        leaveTheFront(session_);
    }
}

void SystemSettings::addTo(DeskPicture& picture, const std::string& iconPath, std::size_t display) const {
    const sim::Accessibility& accessibility = session_.accessibility();
    if (accessibility.isPaneShown()) {
        picture.settingsPane.emplace().display = display;
        if (accessibility.isListed()) {
            picture.settingsPane->rows.push_back(
                {ListedApplication, iconPath, accessibility.isSwitchedOn(), isRowSelected_});
        }
    } else if (areLoginItemsOpen_) {
        picture.settingsPane = SettingsPanePicture{
            display, {}, "Login Items", "These applications open automatically when you log in."};
        if (isLoginItem()) {
            const bool isAllowed = session_.loginItem().status() == AppServiceStatus::enabled;
            picture.settingsPane->rows.push_back({ListedApplication, iconPath, isAllowed, isRowSelected_});
        }
    }
}

} // namespace kestrune::desk
