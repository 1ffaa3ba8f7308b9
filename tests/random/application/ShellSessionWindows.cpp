// The application's windows: which there are, in which order, and which of them has the keys.
#include "sim/services/WindowState.h"
#include "tests/random/application/ShellSession.h"
#include "tests/ui/SceneParts.h"

#include <algorithm>

namespace kestrune::simulate {

std::shared_ptr<Window::State> ShellSession::shownWindow(std::size_t place) {
    const auto windows = session_.windows().shown();
    return place < windows.size() ? windows[place] : nullptr;
}

void ShellSession::pressButton(std::size_t place, std::size_t button) {
    bool isPressed = false;
    if (const auto window = shownWindow(place)) {
        const auto buttons = ui::placesOf<ui::ButtonElement>(sim::Windows::sceneOf(*window));
        isPressed = button < buttons.size();
        if (isPressed) {
            session_.user().clickWindow(window);
            session_.user().pressButton(window, buttons[button]);
        }
    }
    require(model_.pressButton(place, button) == isPressed,
            "a window has not the buttons that it should have");
    check();
}

void ShellSession::flipSwitch(std::size_t place) {
    bool isFlipped = false;
    if (const auto window = shownWindow(place)) {
        const auto switches = ui::placesOf<ui::ToggleElement>(sim::Windows::sceneOf(*window));
        isFlipped = !switches.empty();
        if (isFlipped) {
            session_.user().clickWindow(window);
            session_.user().flipSwitch(window, switches.front());
        }
    }
    require(model_.flipSwitch(place) == isFlipped, "a window has no switch that should have one, or has one");
    check();
}

void ShellSession::pressReturn() {
    const bool isPressed = session_.user().press(ui::KeyboardShortcut::defaultAction);
    require(model_.pressReturn() == isPressed, "Return pressed a button that it should not press, or none");
    check();
}

void ShellSession::pressEscape() {
    const bool isPressed = session_.user().press(ui::KeyboardShortcut::cancelAction);
    require(model_.pressEscape() == isPressed, "Escape pressed a button that it should not press, or none");
    check();
}

void ShellSession::clickWindow(std::size_t place) {
    if (const auto window = shownWindow(place)) {
        session_.user().clickWindow(window);
    }
    model_.clickWindow(place);
    check();
}

void ShellSession::closeWindow(std::size_t place) {
    if (const auto window = shownWindow(place)) {
        session_.user().closeWindow(window);
    }
    model_.closeWindow(place);
    check();
}

// Every one of them, also those that are not on the screen.
void ShellSession::checkWindows(const ProcessModel& process) {
    const auto all = session_.windows().all();
    require(std::equal(all.begin(), all.end(), process.windows.all().begin(), process.windows.all().end(),
                       [](const auto& found, const auto& expected) {
                           return found->title == expected->title &&
                                  found->className == expected->className &&
                                  found->isVisible == expected->isVisible;
                       }),
            "the application has other windows than it should");
    const auto shown = session_.windows().shown();
    const auto expected = process.windows.shown();
    if (shown.size() != expected.size()) {
        violate("too few or too many windows are to be seen");
        return;
    }
    for (std::size_t place = 0; place < shown.size(); ++place) {
        require(shown[place]->title == expected[place]->title, "the windows are in another order");
        require((shown[place]->level == WindowLevel::floating) == expected[place]->isFloating,
                "a window is on the wrong level");
        checkContent(process, *expected[place], *shown[place]);
    }
    checkKeyWindow(process);
}

void ShellSession::checkKeyWindow(const ProcessModel& process) {
    const auto shown = session_.windows().shown();
    const auto expected = process.windows.shown();
    const auto found = std::find(shown.begin(), shown.end(), session_.windows().keyWindow());
    const auto wanted = std::find(expected.begin(), expected.end(), process.windows.key());
    require(found - shown.begin() == wanted - expected.begin(), "another window has the keys than should");
}

void ShellSession::checkContent(const ProcessModel& process, const WindowModel& expected,
                                const Window::State& window) {
    const ui::Scene& scene = sim::Windows::sceneOf(window);
    require(ui::buttonTitles(scene) == model_.buttonsOf(expected), "a window shows the wrong buttons");
    require(window.contentRect().size == scene.size, "a window is not as large as what it shows");
    if (expected.kind == WindowKind::wizard) {
        checkWizardsPage(*process.wizard, window);
    } else if (expected.kind == WindowKind::settings) {
        checkSettingsForm(*process.settings, window);
    }
}

} // namespace kestrune::simulate
