#include "Kestrune/SettingsViewModel.h"

#include <utility>

namespace kestrune {

SettingsViewModel::SettingsViewModel(bool initialLaunchAtLogin,
                                     std::function<void(bool)> launchAtLoginChanged)
    : launchAtLogin(*this, initialLaunchAtLogin), onLaunchAtLoginChanged(std::move(launchAtLoginChanged)) {}

SettingsViewModel::LaunchAtLogin& SettingsViewModel::LaunchAtLogin::operator=(bool isOn) {
    isOn_ = isOn;
    if (model_.onLaunchAtLoginChanged) {
        model_.onLaunchAtLoginChanged(isOn_);
    }
    return *this;
}

} // namespace kestrune
