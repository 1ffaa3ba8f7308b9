// The window of the first-run wizard.
#pragma once

#include "Kestrune/Preferences.h"
#include "Kestrune/WelcomeViewModel.h"
#include "platform/Timer.h"
#include "platform/WindowController.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace kestrune {

// Shows the wizard, asks for the permission and polls for it once a second. Owned by the application delegate
// until the wizard has finished; the window may be closed and shown again meanwhile. What it hands out (the
// model's actions, the timer's block) holds it weakly. Main thread only.
class WelcomeWindowController : public WindowController,
                                public std::enable_shared_from_this<WelcomeWindowController> {
    struct Construction {};

public:
    // Makes the window, which `show` brings on screen, and starts polling. `onFinished` is called when the
    // wizard has been put away; it may let go of the controller.
    static std::shared_ptr<WelcomeWindowController> make(std::shared_ptr<Preferences> preferences,
                                                         std::function<void()> onFinished);

    WelcomeWindowController(Construction /*by make*/, std::shared_ptr<Preferences> preferences,
                            std::function<void()> onFinished);
    ~WelcomeWindowController() override;

    // Brings the wizard on screen and the application to the front, with the introduction only for whoever
    // has granted the permission already.
    void show();

    // The user may come back from System Settings: the permission is looked at without waiting for the timer.
    void windowDidBecomeKey() noexcept override;

    // Closing the window early does not complete the wizard.
    void windowWillClose() noexcept override;

    std::string_view className() const override { return "WelcomeWindowController"; }
    std::string_view sourcePath() const override { return "Kestrune/WelcomeWindowController"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }

    const std::shared_ptr<WelcomeViewModel>& model() const { return model_; }

    // Whether the permission is polled.
    bool isWatchingAccessibility() const { return accessibilityWatcher_.has_value(); }

private:
    void installActions();
    void hostView();
    void startAccessibilityWatcher();
    void endAccessibilityWatcher();
    void checkAccessibility();

    void advanceFromIntro();
    void requestPermissions();

    // Records that the first run is done, and puts the wizard away. Whoever calls it holds the controller.
    void finish();

    // The system's dialog and System Settings must be able to come in front of the page that sends the user
    // there; the introduction stays in front of everything.
    void applyWindowLevel();

    std::shared_ptr<WelcomeViewModel> model_;
    std::shared_ptr<Preferences> preferences_;
    std::function<void()> onFinished_;
    std::optional<Timer> accessibilityWatcher_;
};

} // namespace kestrune
