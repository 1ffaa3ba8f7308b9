// What the first-run wizard shows, and what its buttons do.
#pragma once

#include "ui/ObservableObject.h"

#include <functional>

namespace kestrune {

// The views read it and call its actions; they never assign anything. It calls no platform: the window
// controller owns it, installs the actions and keeps the permission's state fresh. Main thread only.
class WelcomeViewModel : public ui::ObservableObject {
public:
    // In the order in which the user goes through them.
    enum class Step { intro, accessibility };

    WelcomeViewModel(Step initialStep, bool isTrusted);

    ui::Published<Step> currentStep;

    // Whether the process is trusted for Accessibility.
    ui::Published<bool> isAccessibilityTrusted;

    // Whether the user has asked for the permission from the wizard. Never goes back to false.
    ui::Published<bool> hasRequestedPermission;

    // Leave the introduction, ask the system for the permission, open its Accessibility pane, end the wizard.
    // Each does nothing until the owner replaces it.
    std::function<void()> advanceFromIntro = [] {};
    std::function<void()> requestPermissions = [] {};
    std::function<void()> openAccessibilitySettings = [] {};
    std::function<void()> finish = [] {};
};

} // namespace kestrune
