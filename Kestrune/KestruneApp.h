// The application delegate, which owns everything that lives as long as the process, and the entry point.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "Kestrune/MenuBarController.h"
#include "Kestrune/Preferences.h"
#include "Kestrune/SettingsWindowController.h"
#include "Kestrune/WelcomeWindowController.h"
#include "platform/Application.h"
#include "platform/Timer.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace kestrune {

// Decides at launch what to start, starts the guard when it may run and again when the Accessibility
// permission arrives, follows the displays, and stops the guard at exit. What it hands out (callbacks, timer,
// observer, task) holds it weakly and does nothing once it is gone; the timer ends itself then. It lives as
// long as the process: while the guard runs, it may not go. Main thread only.
class KestruneApp : public ApplicationDelegate, public std::enable_shared_from_this<KestruneApp> {
    struct Construction {};

public:
    // Starts nothing.
    static std::shared_ptr<KestruneApp> make();

    explicit KestruneApp(Construction /*by make*/);

    void applicationDidFinishLaunching() noexcept override;

    // Where the menu bar has no room for the icon, this is the way to Settings, and to the wizard.
    bool applicationShouldHandleReopen(bool hasVisibleWindows) noexcept override;

    void applicationWillTerminate() noexcept override;

    // Action of the main menu's "Settings…": the wizard instead, while the setup is not complete.
    void menuOpenSettings();

    // Brings the Settings window forward.
    void openSettingsWindow();

    // Brings the first-run wizard forward.
    void showWelcomeWindow();

    // The menu found the permission granted before the watcher did.
    void accessibilityGranted();

    // The wizard has ended.
    void welcomeFinished();

    // Whether the first run is behind the user and the permission is there.
    bool isSetupComplete() const;

    // Null until the application has launched.
    const std::shared_ptr<MenuBarController>& menuBarController() const { return menuBarController_; }
    const std::shared_ptr<Preferences>& preferences() const { return preferences_; }
    const std::shared_ptr<DockGuardController>& dockGuard() const { return dockGuard_; }

    // Null until the user has wanted Settings.
    const std::shared_ptr<SettingsWindowController>& settingsWindowController() const {
        return settingsWindowController_;
    }

    // Null unless the wizard is going on.
    const std::shared_ptr<WelcomeWindowController>& welcomeWindowController() const {
        return welcomeWindowController_;
    }

    // Whether the permission is polled.
    bool isWatchingAccessibility() const { return accessibilityWatcher_.has_value(); }

    std::string_view className() const override { return "KestruneApp"; }
    std::span<const ActionMethod> actionMethods() const override;

private:
    void installMainMenu();
    std::shared_ptr<MenuBarController> makeMenuBarController();

    void startGuardIfAllowed();
    void startAccessibilityWatcher();
    void checkAccessibility(Timer& watcher);
    void endAccessibilityWatcher();
    void scheduleWelcomeDecision();
    void decideOnWelcome();
    void observeScreenParameters();
    void screenParametersChanged();
    void rebuildMenu();

    std::shared_ptr<MenuBarController> menuBarController_;
    std::shared_ptr<Preferences> preferences_;
    std::shared_ptr<DockGuardController> dockGuard_;
    std::optional<Timer> accessibilityWatcher_;
    std::shared_ptr<SettingsWindowController> settingsWindowController_; // null until the user has wanted it
    std::shared_ptr<WelcomeWindowController> welcomeWindowController_;   // null unless the wizard is going on
};

// The process's main function: launches the application and runs it. The result keeps the delegate alive,
// which the platform holds weakly, where `Application::run` returns.
[[nodiscard]] std::shared_ptr<KestruneApp> runKestrune();

} // namespace kestrune
