#include "platform/Application.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/ApplicationState.h"
#include "sim/services/Current.h"
#include "sim/services/MainThread.h"
#include "sim/services/MenuState.h"
#include "sim/services/Process.h"
#include "sim/services/Windows.h"

namespace kestrune {

namespace {

std::string_view nameOf(ActivationPolicy policy) {
    switch (policy) {
    case ActivationPolicy::regular:
        return "NSApplicationActivationPolicyRegular";
    case ActivationPolicy::accessory:
        return "NSApplicationActivationPolicyAccessory";
    case ActivationPolicy::prohibited:
        break;
    }
    return "NSApplicationActivationPolicyProhibited";
}

} // namespace

Application Application::sharedApplication() {
    sim::recordCall("NSApplication.sharedApplication");
    sim::current<sim::Process>().startApplication();
    return {};
}

std::optional<Application> Application::nsApp() {
    sim::recordCall("NSApp");
    return sim::current<sim::ApplicationState>().exists ? std::optional(Application()) : std::nullopt;
}

void Application::setDelegate(const std::weak_ptr<ApplicationDelegate>& delegate) {
    const auto object = delegate.lock();
    sim::recordCall("-[NSApplication setDelegate:] ", object ? object->className() : "nil");
    sim::current<sim::ApplicationState>().delegate = delegate;
}

bool Application::setActivationPolicy(ActivationPolicy policy) {
    sim::recordCall("-[NSApplication setActivationPolicy:] ", nameOf(policy));
    sim::current<sim::ApplicationState>().policy = policy;
    return true;
}

ActivationPolicy Application::activationPolicy() const {
    sim::recordCall("-[NSApplication activationPolicy]");
    return sim::current<sim::ApplicationState>().policy;
}

std::vector<Window> Application::windows() const {
    sim::recordCall("-[NSApplication windows]");
    std::vector<Window> windows;
    for (const auto& window : sim::current<sim::Windows>().all()) {
        windows.emplace_back(window);
    }
    return windows;
}

void Application::setMainMenu(const Menu& menu) {
    sim::recordCall("-[NSApplication setMainMenu:] ", menu.state()->items.size(), " items");
    sim::current<sim::ApplicationState>().mainMenu = menu;
}

// The system takes its time.
void Application::activateIgnoringOtherApps(bool ignoring) {
    sim::recordCall("-[NSApplication activateIgnoringOtherApps:] ", ignoring);
    sim::current<sim::MainThread>().enqueue(
        [&windows = sim::current<sim::Windows>()] { windows.activateByApplication(); });
}

// Returns after the launch: whoever drives the session is the loop that delivers the events.
void Application::run() {
    sim::recordCall("-[NSApplication run]");
    sim::current<sim::ApplicationState>().isRunning = true;
    if (const auto delegate = sim::current<sim::ApplicationState>().delegate.lock()) {
        sim::recordCall("-[", delegate->className(), " applicationDidFinishLaunching:]");
        delegate->applicationDidFinishLaunching();
    }
}

void Application::terminate() {
    sim::recordCall("-[NSApplication terminate:]");
    if (const auto delegate = sim::current<sim::ApplicationState>().delegate.lock()) {
        sim::recordCall("-[", delegate->className(), " applicationWillTerminate:]");
        delegate->applicationWillTerminate();
    }
    sim::current<sim::Process>().end();
}

} // namespace kestrune
