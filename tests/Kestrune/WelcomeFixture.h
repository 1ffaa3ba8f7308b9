// A session with the wizard in it, and what its user sees of it.
#pragma once

#include "Kestrune/WelcomeWindowController.h"
#include "platform/Application.h"
#include "sim/WindowState.h"
#include "tests/Kestrune/ShellCalls.h"
#include "ui/SceneText.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune {

// The titles of the buttons of a window, in order.
inline std::vector<std::string> buttonTitles(const Window::State& window) {
    std::vector<std::string> titles;
    for (const ui::Element& element : sim::Windows::sceneOf(window).elements) {
        if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
            titles.push_back(button->title);
        }
    }
    return titles;
}

// The texts outside of buttons, in order.
inline std::vector<std::string> shownTexts(const Window::State& window) {
    std::vector<std::string> texts;
    for (const ui::Element& element : sim::Windows::sceneOf(window).elements) {
        if (const auto* const text = std::get_if<ui::TextElement>(&element)) {
            texts.push_back(text->text.string());
        }
    }
    return texts;
}

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
    const auto& elements = sim::Windows::sceneOf(*window).elements;
    const auto found = std::find_if(elements.begin(), elements.end(), [title](const ui::Element& element) {
        const auto* const button = std::get_if<ui::ButtonElement>(&element);
        return button != nullptr && button->title == title;
    });
    if (found == elements.end()) {
        return false;
    }
    session.windows().pressButton(window, static_cast<std::size_t>(found - elements.begin()));
    return true;
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

    void setPermission(sim::Permission permission) { session.accessibility().setPermission(permission); }

    bool press(std::string_view title) {
        const bool isPressed = pressButton(session, title);
        settle();
        return isPressed;
    }

    std::vector<std::string> buttons() { return buttonTitles(*onlyWindow(session)); }
    std::vector<std::string> texts() { return shownTexts(*onlyWindow(session)); }
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
