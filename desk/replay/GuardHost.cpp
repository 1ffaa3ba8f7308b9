#include "desk/replay/GuardHost.h"

#include "platform/AccessibilityTrust.h"

namespace kestrune::desk {

GuardHost::GuardHost() : preferences_(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())) {
    guard_.setPreferences(preferences_);
    guard_.refreshScreens();
}

GuardHost::~GuardHost() { guard_.stop(); }

void GuardHost::startIfAllowed() {
    if (preferences_->isEnabled() && !guard_.isRunning() && isProcessTrusted()) {
        guard_.refreshScreens();
        guard_.start();
    }
}

void GuardHost::setEnabled(bool enabled) {
    preferences_->defaults().setBool(enabled, Preferences::IsEnabledKey);
    if (enabled) {
        startIfAllowed();
    } else {
        guard_.stop();
    }
}

void GuardHost::pin(const std::string& uuid) {
    preferences_->defaults().setObject(uuid, Preferences::PinnedScreenUUIDKey);
    guard_.refreshScreens();
}

void GuardHost::displaysChanged() { guard_.refreshScreens(); }

} // namespace kestrune::desk
