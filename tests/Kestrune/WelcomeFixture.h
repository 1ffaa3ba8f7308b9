// A session with the wizard in it, and what its user sees of it.
#pragma once

#include "Kestrune/WelcomeWindowController.h"
#include "platform/Application.h"
#include "sim/services/WindowState.h"
#include "tests/Kestrune/ShellCalls.h"
#include "tests/ui/SceneParts.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune {

// The only window that the application shows; null unless there is exactly one.
inline std::shared_ptr<Window::State> onlyWindow(sim::Session& session) {
    const auto windows = session.windows().shown();
    return windows.size() == 1 ? windows.front() : nullptr;
}

// The user presses the button with that title in the only window. False when there is none.
inline bool pressButton(sim::Session& session, std::string_view title) {
    const auto window = onlyWindow(session);
    if (!window) {
        return false;
    }
    const auto place = ui::placeOfButton(sim::Windows::sceneOf(*window), title);
    if (place) {
        session.user().pressButton(window, *place);
    }
    return place.has_value();
}

class WelcomeFixture : public ::testing::Test {
protected:
    explicit WelcomeFixture(sim::Permission permission = sim::Permission::granted,
                            sim::BundleContents bundle = {})
        : session(options(permission, std::move(bundle))),
          preferences(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())) {
        Application::sharedApplication();
        session.journal().take();
    }

    void make() {
        controller = WelcomeWindowController::make(preferences, [this] { ++finishedCalls; });
    }

    // On screen, after what that left to do.
    void makeAndShow() {
        make();
        controller->show();
        settle();
        session.journal().take();
    }

    // The main thread does what waits for it.
    void settle() { session.advance(sim::Duration::zero()); }

    void setPermission(sim::Permission permission) { session.user().setPermission(permission); }

    bool press(std::string_view title) {
        const bool isPressed = pressButton(session, title);
        settle();
        return isPressed;
    }

    const ui::Scene& scene() { return sim::Windows::sceneOf(*onlyWindow(session)); }
    std::vector<std::string> buttons() { return ui::buttonTitles(scene()); }
    std::vector<std::string> texts() { return ui::shownTexts(scene()); }
    Calls calls() { return session.journal().take(); }

    sim::Session session;
    std::shared_ptr<Preferences> preferences;
    std::shared_ptr<WelcomeWindowController> controller;
    int finishedCalls = 0;

private:
    static sim::SessionOptions options(sim::Permission permission, sim::BundleContents bundle) {
        sim::SessionOptions options = withDisplays({primaryDisplay()});
        options.permission = permission;
        options.bundle = std::move(bundle);
        return options;
    }
};

class WelcomeWithoutPermission : public WelcomeFixture {
protected:
    WelcomeWithoutPermission() : WelcomeFixture(sim::Permission::notListed) {}
};

} // namespace kestrune
