// The icon in the menu bar and the menu behind it.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "Kestrune/ManagedScreen.h"
#include "Kestrune/Preferences.h"
#include "platform/Menu.h"
#include "platform/StatusBar.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune {

// From the menu the user picks the display that keeps the Dock, switches the guard, opens Settings or the
// wizard, and quits. The menu is never patched in place: each change builds a new one from the preferences,
// the displays and the permission as they are then. Made by the application delegate at launch and kept for
// the life of the process. Main thread only.
class MenuBarController : public MenuDelegate, public std::enable_shared_from_this<MenuBarController> {
    struct Construction {};

public:
    struct Openers {
        std::function<void()> openSettings;
        std::function<void()> openWelcome;
    };

    // With its icon in the menu bar and its first menu.
    static std::shared_ptr<MenuBarController> make(std::shared_ptr<Preferences> preferences,
                                                   std::shared_ptr<DockGuardController> dockGuard,
                                                   Openers openers);

    MenuBarController(Construction /*by make*/, std::shared_ptr<Preferences> preferences,
                      std::shared_ptr<DockGuardController> dockGuard, Openers openers);

    // Called when the menu opens, the permission is there and the guard does not run. Absent until it is set;
    // it must not set another while it runs.
    void setOnAccessibilityGranted(std::function<void()> onAccessibilityGranted);

    // Builds a menu of the current state and puts it in the place of the one before.
    void rebuildMenu();

    void menuWillOpen(const Menu& menu) noexcept override;

    // Actions of menu items.
    void toggleEnabled();
    void selectScreen(const MenuItem& sender);
    void openAccessibilitySettings();
    void showSettings();
    void showWelcome();
    void quit();

    std::string_view className() const override { return "MenuBarController"; }
    std::span<const ActionMethod> actionMethods() const override;

private:
    void configureStatusItem();
    bool isSetupComplete() const;
    void addSetupItem(Menu& menu);
    void addScreenItems(Menu& menu, bool setupComplete);
    MenuItem screenItem(const ManagedScreen& screen, const std::optional<std::string>& mainUUID,
                        const std::optional<std::string>& markedUUID, bool setupComplete);
    std::optional<std::string> markedUUID(const std::vector<ManagedScreen>& screens,
                                          const std::optional<std::string>& mainUUID) const;
    MenuItem itemForThis(std::string_view title, const Selector& action, std::string_view keyEquivalent);

    std::shared_ptr<Preferences> preferences_;
    std::shared_ptr<DockGuardController> dockGuard_;
    StatusItem statusItem_;
    std::function<void()> openSettings_;
    std::function<void()> openWelcome_;
    std::function<void()> onAccessibilityGranted_;
};

} // namespace kestrune
