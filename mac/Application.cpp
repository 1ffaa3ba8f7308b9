#include "platform/Application.h"

#include "mac/Handles.h"
#include "mac/ObjectCounterpart.h"
#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"

// NSApp: nil before the first sharedApplication.
// NOLINTNEXTLINE(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
extern "C" id NSApp;

namespace kestrune {

Application Application::sharedApplication() {
    const mac::Pool pool;
    mac::appKit.application.sharedApplication();
    return {};
}

std::optional<Application> Application::nsApp() {
    return NSApp != nullptr ? std::optional(Application()) : std::nullopt;
}

void Application::setDelegate(const std::weak_ptr<ApplicationDelegate>& delegate) {
    const mac::Pool pool;
    mac::appKit.application.setDelegate(NSApp, Object::Counterpart::of(delegate));
}

bool Application::setActivationPolicy(ActivationPolicy policy) {
    return mac::appKit.application.setActivationPolicy(NSApp, static_cast<mac::Integer>(policy)) != 0;
}

ActivationPolicy Application::activationPolicy() const {
    return static_cast<ActivationPolicy>(mac::appKit.application.activationPolicy(NSApp));
}

std::vector<Window> Application::windows() const {
    const mac::Pool pool;
    const id list = mac::appKit.application.windows(NSApp);
    std::vector<Window> windows;
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(list); ++index) {
        const id window = mac::foundation.array.objectAtIndex(list, index);
        windows.emplace_back(
            std::make_shared<Window::State>(Window::State{mac::Retained::retaining(window)}));
    }
    return windows;
}

void Application::setMainMenu(const Menu& menu) {
    const mac::Pool pool;
    mac::appKit.application.setMainMenu(NSApp, menu.state()->menu.get());
}

void Application::activateIgnoringOtherApps(bool ignoring) {
    const mac::Pool pool;
    mac::appKit.application.activateIgnoringOtherApps(NSApp, mac::truth(ignoring));
}

void Application::run() { mac::appKit.application.run(NSApp); }

void Application::terminate() { mac::appKit.application.terminate(NSApp, nullptr); }

} // namespace kestrune
