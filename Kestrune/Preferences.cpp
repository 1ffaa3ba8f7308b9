#include "Kestrune/Preferences.h"

#include <utility>

namespace kestrune {

Preferences::Preferences(std::shared_ptr<UserDefaults> defaults) : defaults_(std::move(defaults)) {}

bool Preferences::isEnabled() const {
    if (defaults_->objectForKey(IsEnabledKey) == nullptr) {
        return true;
    }
    return defaults_->boolForKey(IsEnabledKey);
}

} // namespace kestrune
