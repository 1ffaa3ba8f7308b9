// Runs the guard on a simulated session, as the application does.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "Kestrune/Preferences.h"

#include <memory>

namespace kestrune::desk {

// Owns the preferences and the guard. Needs a session, and must go before it does. It refreshes the displays
// at once, so that the desk can show the pinned display while the guard is off.
class GuardHost {
public:
    GuardHost();
    ~GuardHost();

    GuardHost(const GuardHost&) = delete;
    GuardHost& operator=(const GuardHost&) = delete;

    // The one start rule: enabled, not running and trusted; the displays are refreshed first.
    void startIfAllowed();

    // The menu's switch.
    void setEnabled(bool enabled);

    // The menu's choice of a display, by its identifier.
    void pin(const std::string& uuid);

    // What the notification of changed displays leads to.
    void displaysChanged();

    const DockGuardController& guard() const { return guard_; }
    const Preferences& preferences() const { return *preferences_; }

private:
    std::shared_ptr<Preferences> preferences_;
    DockGuardController guard_;
};

} // namespace kestrune::desk
