// The person at the simulated Mac.
#pragma once

#include "platform/AppService.h"
#include "platform/Menu.h"
#include "sim/session/System.h"
#include "ui/Scene.h"

#include <cstddef>
#include <optional>
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

    // Makes another application the active one, or the application again.
    void switchAway() { system_.windows.setActive(false); }
    void switchToApplication() { system_.windows.setActive(true); }

    // At the windows: what a click does is told in sim::Windows.
    void clickWindow(const Windows::WindowState& window) { system_.windows.click(window); }
    void closeWindow(const Windows::WindowState& window) { system_.windows.closeByUser(window); }
    void miniaturizeWindow(const Windows::WindowState& window) { system_.windows.miniaturizeByUser(window); }
    void moveWindow(const Windows::WindowState& window, Point topLeft) const {
        system_.windows.moveTo(window, topLeft);
    }

    // Presses a button of the hosted view, or flips a switch; elements count from 0 and are those of the
    // scene. Nothing happens to any other element.
    void pressButton(const Windows::WindowState& window, std::size_t element);
    void flipSwitch(const Windows::WindowState& window, std::size_t element);

    // The button of the hosted view that the key stands for; absent when there is none.
    static std::optional<std::size_t> elementFor(const Window::State& window, ui::KeyboardShortcut shortcut);

    // The same with the keyboard: the button of the window with the keys whose shortcut the key is, Return or
    // Escape, which also takes back what the system asks in a window that cannot be closed. True when there
    // is something to press.
    bool press(ui::KeyboardShortcut shortcut);

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
