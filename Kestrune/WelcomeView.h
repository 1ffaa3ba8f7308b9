// The pages of the first-run wizard.
#pragma once

#include "Kestrune/WelcomeViewModel.h"
#include "ui/View.h"

#include <functional>
#include <memory>

namespace kestrune {

// The whole content of the wizard's window: the page of the current step, with a caption from the second one
// on.
struct WelcomeView {
    std::shared_ptr<WelcomeViewModel> model;
    double contentWidth = 0; // points

    ui::View body() const;
};

// What the wizard is for.
struct WelcomeIntroStep {
    std::function<void()> onContinue;

    ui::View body() const;
};

// Asks for the permission, waits for it, and ends the wizard once it is there.
struct WelcomeAccessibilityStep {
    bool isTrusted = false;
    bool hasRequestedPermission = false;
    std::function<void()> onRequestPermissions;
    std::function<void()> onOpenSettings;
    std::function<void()> onFinish;

    ui::View body() const;
};

} // namespace kestrune
