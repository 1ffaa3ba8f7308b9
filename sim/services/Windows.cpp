#include "sim/services/Windows.h"

#include "base/Fatal.h"
#include "platform/NotificationCenter.h"
#include "sim/hardware/Displays.h"
#include "sim/services/ApplicationState.h"
#include "sim/services/HostedView.h"
#include "sim/services/Journal.h"
#include "sim/services/Observers.h"
#include "sim/services/WindowState.h"

#include <algorithm>

namespace kestrune::sim {

namespace {

// What the application lets float is in front of what the system does.
int heightOf(const Window::State& window) {
    return window.level == WindowLevel::normal ? 0 : window.isOfApplication() ? 2 : 1;
}

} // namespace

std::vector<Windows::WindowState> Windows::stack() const {
    const bool isActive = application_.isActive;
    std::vector<WindowState> result;
    for (const auto& reference : ordered_) {
        if (auto window = reference.lock(); window && (isActive || !window->hidesOnDeactivate)) {
            result.push_back(std::move(window));
        }
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const auto& one, const auto& other) { return heightOf(*one) > heightOf(*other); });
    return result;
}

std::vector<Windows::WindowState> Windows::shown() const {
    std::vector<WindowState> result = stack();
    std::erase_if(result, [](const WindowState& window) { return !window->isOfApplication(); });
    return result;
}

std::vector<Windows::WindowState> Windows::all() const {
    std::vector<WindowState> result;
    for (const auto& reference : all_) {
        if (auto window = reference.lock()) {
            result.push_back(std::move(window));
        }
    }
    return result;
}

std::vector<Windows::WindowState> Windows::miniaturized() const {
    std::vector<WindowState> result = all();
    std::erase_if(result, [](const WindowState& window) { return !window->isMiniaturized; });
    return result;
}

void Windows::add(const WindowState& window) {
    std::erase_if(all_, [](const auto& reference) { return reference.expired(); });
    all_.push_back(window);
}

Windows::WindowState Windows::keyWindow() const {
    if (!application_.isActive) {
        return nullptr;
    }
    if (auto wanted = wantedKey_.lock(); wanted && wanted->isVisible) {
        return wanted;
    }
    const auto windows = shown();
    return windows.empty() ? nullptr : windows.front();
}

Windows::WindowState Windows::receiverOfKeys() const {
    if (application_.isActive) {
        return keyWindow();
    }
    const auto windows = stack();
    const auto front = std::find_if(windows.begin(), windows.end(),
                                    [](const WindowState& window) { return !window->isOfApplication(); });
    return front != windows.end() ? *front : nullptr;
}

const ui::Scene& Windows::sceneOf(const Window::State& window) {
    static const ui::Scene nothing;
    return window.content ? window.content->host().scene() : nothing;
}

void Windows::center(Window::State& window) const {
    const auto main = displays_.main();
    if (!main) {
        return;
    }
    const Rect screen = displays_.appKitFrame(main->bounds);
    window.frame.origin = {screen.minX() + (screen.width() - window.frame.width()) / 2,
                           screen.minY() + (screen.height() - window.frame.height()) * 2 / 3};
}

void Windows::makeKeyAndOrderFront(const WindowState& window) {
    requireUnreleased(*window);
    const WindowState before = keyWindow();
    orderFront(window);
    wantedKey_ = window;
    tellNewKeyWindow(before);
}

void Windows::orderFront(const WindowState& window) {
    takeOut(*window);
    ordered_.insert(ordered_.begin(), window);
    window->isVisible = true;
    window->isMiniaturized = false;
}

void Windows::orderOut(const WindowState& window) {
    requireUnreleased(*window);
    const WindowState before = keyWindow();
    hide(*window);
    tellNewKeyWindow(before);
}

void Windows::hide(Window::State& window) {
    takeOut(window);
    window.isVisible = false;
    window.isMiniaturized = false;
}

void Windows::takeOut(const Window::State& window) {
    std::erase_if(ordered_, [&window](const auto& reference) {
        const auto other = reference.lock();
        return !other || other.get() == &window;
    });
}

void Windows::tellNewKeyWindow(const WindowState& before) const {
    const WindowState key = keyWindow();
    if (!key || key == before) {
        return;
    }
    if (const auto delegate = key->delegate.lock()) {
        journal_.record("-[", delegate->className(), " windowDidBecomeKey:]");
        delegate->windowDidBecomeKey();
    }
    observers_.post(WindowDidBecomeKeyNotification, key);
}

void Windows::click(const WindowState& window) {
    if (!window->isOfApplication()) {
        setActive(false);
        orderFront(window);
        return;
    }
    const WindowState before = keyWindow();
    application_.isActive = true;
    orderFront(window);
    wantedKey_ = window;
    tellNewKeyWindow(before);
}

void Windows::closeByUser(const WindowState& window) {
    if (!window->has(WindowStyleMask::closable) || !window->isVisible) {
        return;
    }
    if (!window->isOfApplication()) {
        window->dismiss();
        return;
    }
    if (const auto delegate = window->delegate.lock()) {
        journal_.record("-[", delegate->className(), " windowWillClose:]");
        delegate->windowWillClose();
    }
    orderOut(window);
    window->isReleased = window->isReleasedWhenClosed;
}

void Windows::miniaturizeByUser(const WindowState& window) {
    if (!window->has(WindowStyleMask::miniaturizable) || !window->isVisible) {
        return;
    }
    const WindowState before = keyWindow();
    hide(*window);
    window->isMiniaturized = true;
    tellNewKeyWindow(before);
}

void Windows::moveTo(const WindowState& window, Point topLeft) const {
    window->frame =
        displays_.appKitFrame({topLeft.x, topLeft.y, window->frame.width(), window->frame.height()});
}

void Windows::setActive(bool isActive) {
    const WindowState before = keyWindow();
    application_.isActive = isActive;
    std::stable_partition(ordered_.begin(), ordered_.end(), [isActive](const auto& reference) {
        const WindowState window = reference.lock();
        return window && window->isOfApplication() == isActive;
    });
    tellNewKeyWindow(before);
}

void Windows::activateByApplication() {
    if (!faults_.refusesActivation) {
        setActive(true);
    }
}

void Windows::registerController(std::string_view className, std::string_view sourcePath) {
    sourcePaths_.emplace(className, sourcePath);
}

void Windows::refuseConstruction(std::string_view className) const {
    const auto known = sourcePaths_.find(className);
    if (known == sourcePaths_.end()) {
        fatal("The runtime does not know the class yet.");
    }
    fatal("init(coder:) is not supported", known->second);
}

void Windows::requireUnreleased(const Window::State& window) {
    if (window.isReleased) {
        fatal("A window is used that its closing has released.");
    }
}

// What is left of them has no effect any more.
void Windows::clear() {
    for (const WindowState& window : all()) {
        hide(*window);
    }
    all_.clear();
    sourcePaths_.clear();
}

} // namespace kestrune::sim
