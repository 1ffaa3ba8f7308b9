#include "sim/session/User.h"

#include "sim/services/HostedView.h"
#include "sim/services/WindowState.h"

#include <algorithm>

namespace kestrune::sim {

namespace {

// Runs an action of the hosted view; window and view live until it returns.
template <typename Wanted, typename Action>
void withElement(const Windows::WindowState& window, std::size_t element, Action&& action) {
    if (!window->content) {
        return;
    }
    const auto view = window->content;
    const auto& elements = view->host().scene().elements;
    if (element >= elements.size()) {
        return;
    }
    if (const auto* const wanted = std::get_if<Wanted>(&elements[element])) {
        action(view->host(), *wanted);
    }
}

} // namespace

bool User::reopenApplication() {
    if (!system_.application.isRunning) {
        return false;
    }
    system_.windows.setActive(true);
    const auto delegate = system_.application.delegate.lock();
    if (!delegate) {
        return true;
    }
    const bool hasVisibleWindows =
        !system_.windows.shown().empty() || !system_.windows.miniaturized().empty();
    system_.journal.record("-[", delegate->className(), " applicationShouldHandleReopen:hasVisibleWindows:] ",
                           hasVisibleWindows);
    return delegate->applicationShouldHandleReopen(hasVisibleWindows);
}

void User::pressButton(const Windows::WindowState& window, std::size_t element) {
    withElement<ui::ButtonElement>(window, element, [](ui::ViewHost& host, const ui::ButtonElement& button) {
        host.press(button.action);
    });
}

void User::flipSwitch(const Windows::WindowState& window, std::size_t element) {
    withElement<ui::ToggleElement>(window, element, [](ui::ViewHost& host, const ui::ToggleElement& toggle) {
        host.flip(toggle.action, !toggle.isOn);
    });
}

std::optional<std::size_t> User::elementFor(const Window::State& window, ui::KeyboardShortcut shortcut) {
    const auto& elements = Windows::sceneOf(window).elements;
    const auto button =
        std::find_if(elements.begin(), elements.end(), [shortcut](const ui::Element& element) {
            const auto* const candidate = std::get_if<ui::ButtonElement>(&element);
            return candidate != nullptr && candidate->shortcut == shortcut;
        });
    return button != elements.end() ? std::optional(static_cast<std::size_t>(button - elements.begin()))
                                    : std::nullopt;
}

bool User::press(ui::KeyboardShortcut shortcut) {
    const Windows::WindowState key = system_.windows.receiverOfKeys();
    if (!key) {
        return false;
    }
    if (const auto element = elementFor(*key, shortcut)) {
        pressButton(key, *element);
        return true;
    }
    const bool isTakenBack = shortcut == ui::KeyboardShortcut::cancelAction && key->dismiss &&
                             !key->has(WindowStyleMask::closable);
    if (isTakenBack) {
        key->dismiss();
    }
    return isTakenBack;
}

void User::flipPermissionSwitch() {
    const Permission permission = system_.accessibility.permission();
    if (permission == Permission::switchedOff) {
        setPermission(Permission::granted);
    } else if (permission == Permission::granted) {
        setPermission(Permission::switchedOff);
    }
}

void User::removePermissionRow() {
    if (system_.accessibility.isListed()) {
        const bool wasGranted = system_.accessibility.permission() == Permission::granted;
        setPermission(wasGranted ? Permission::rowDeleted : Permission::notListed);
    }
}

} // namespace kestrune::sim
