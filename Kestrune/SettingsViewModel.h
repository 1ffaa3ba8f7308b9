// What the Settings form shows, and what its controls do.
#pragma once

#include "ui/ObservableObject.h"

#include <functional>

namespace kestrune {

// It knows nothing of windows, updates and mails: the window controller owns it and installs the actions.
// Main thread only.
class SettingsViewModel : public ui::ObservableObject {
public:
    // The state of the switch. Each assignment, also of the value that it has, is published and then told to
    // `onLaunchAtLoginChanged`.
    class LaunchAtLogin {
    public:
        LaunchAtLogin(SettingsViewModel& model, bool initial) : model_(model), isOn_(model, initial) {}

        LaunchAtLogin& operator=(bool isOn);
        operator bool() const { return isOn_; } // NOLINT(google-explicit-constructor)

    private:
        SettingsViewModel& model_;
        ui::Published<bool> isOn_;
    };

    // Tells nobody of the initial state.
    SettingsViewModel(bool initialLaunchAtLogin, std::function<void(bool)> launchAtLoginChanged);

    LaunchAtLogin launchAtLogin;

    // Each does nothing until the owner replaces it.
    std::function<void()> checkForUpdates = [] {};
    std::function<void()> reportBug = [] {};

    // May be absent.
    std::function<void(bool)> onLaunchAtLoginChanged;
};

} // namespace kestrune
