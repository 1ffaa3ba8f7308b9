// Runs the application on a simulated session.
#pragma once

#include "Kestrune/KestruneApp.h"
#include "platform/DisplayUUID.h"
#include "sim/session/Session.h"

#include <memory>

namespace kestrune::replay {

// One process after the other: the application is launched at once, and can be launched again after it has
// ended. What is done through the menu is done as its user would, by opening the status item's menu and
// choosing a row.
class ApplicationHost {
public:
    // `session` must outlive the host.
    explicit ApplicationHost(sim::Session& session);
    ~ApplicationHost();

    ApplicationHost(const ApplicationHost&) = delete;
    ApplicationHost& operator=(const ApplicationHost&) = delete;

    // Starts the process, unless it runs, and lets it settle.
    void launch();

    // Whether the process runs.
    bool isRunning() const { return app_ != nullptr; }

    // Lets go of what belonged to a process that has ended meanwhile, by the menu or by a key.
    void noticeEnd();

    // Whether the process watches for the permission.
    bool isWatchingAccessibility() const { return app_ && app_->isWatchingAccessibility(); }

    // Null while the process does not run.
    const DockGuardController* guard() const { return app_ ? app_->dockGuard().get() : nullptr; }
    bool guardIsRunning() const { return app_ && app_->dockGuard()->isRunning(); }

    // Each is false when the menu does not offer it now.
    bool chooseDisplay(DisplayID number);
    bool flipSwitch();
    bool quit();

    // What leads the user to the permission: the system's dialog and its pane. False while the process does
    // not run.
    bool askForPermission();

private:
    bool choose(const std::string& title);
    bool openFreshMenu();

    sim::Session& session_;
    std::shared_ptr<KestruneApp> app_;
};

} // namespace kestrune::replay
