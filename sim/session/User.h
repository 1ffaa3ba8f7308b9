// The person at the simulated Mac.
#pragma once

#include "platform/AppService.h"
#include "platform/Menu.h"
#include "sim/services/System.h"

#include <cstddef>
#include <string_view>

namespace kestrune::sim {

// What is to be seen is asked of the services: the rows of sim::MenuTracking, the windows of sim::Windows.
class User {
public:
    // `system` must outlive this.
    explicit User(System& system) : system_(system) {}

    // Opens the application that runs already: the system makes it the active one and tells its delegate.
    // Whether AppKit goes on by itself, which is not simulated.
    bool reopenApplication();

    // Ends the application by force.
    void endApplication() { system_.process.end(); }

    // At the menus: what these do and answer is told in sim::MenuTracking.
    bool openMenu(const MenuPlace& place) { return system_.menus.open(place); }
    bool chooseRow(std::size_t row) { return system_.menus.choose(row); }
    void closeMenu() { system_.menus.close(); }
    bool press(std::string_view keyEquivalent, EventModifierFlags modifiers) {
        return system_.menus.press(keyEquivalent, modifiers);
    }

    // At the system's dialog about the permission: one button leads to the pane, the other only closes the
    // dialog.
    void openSettingsFromDialog() { system_.accessibility.answerDialog(DialogAnswer::openSettings); }
    void denyInDialog() { system_.accessibility.answerDialog(DialogAnswer::deny); }

    // In System Settings, at the pane of the permission. A switch that is on for an older build has no
    // effect; only removing the row helps.
    void openPane() { system_.accessibility.showPane(); }
    void closePane() { system_.accessibility.closePane(); }
    void flipPermissionSwitch();
    void removePermissionRow();

    // The same without the way there.
    void setPermission(Permission permission) { system_.accessibility.setPermission(permission); }

    // In System Settings, at the login items: allows the item, or revokes it; or nothing is known of it.
    void setLoginItem(AppServiceStatus status) { system_.loginItem.setStatus(status); }

    // Wants to be asked: whoever registers anew waits for the approval.
    void requireLoginItemApproval(bool require) { system_.loginItem.requireApproval(require); }

    // Puts away whatever the updater shows.
    void dismissUpdater() { system_.updates.dismiss(); }

private:
    System& system_;
};

} // namespace kestrune::sim
