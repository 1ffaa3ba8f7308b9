#include "platform/Application.h"

#include "sim/seam/MenuState.h"
#include "sim/session/Session.h"

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
    sim::Session& session = sim::Session::current();
    session.journal().record("NSApplication.sharedApplication");
    session.startApplication();
    return {};
}

std::optional<Application> Application::nsApp() {
    sim::Session& session = sim::Session::current();
    session.journal().record("NSApp");
    return session.application().exists ? std::optional(Application()) : std::nullopt;
}

void Application::setDelegate(const std::weak_ptr<ApplicationDelegate>& delegate) {
    sim::Session& session = sim::Session::current();
    const auto object = delegate.lock();
    session.journal().record("-[NSApplication setDelegate:] ", object ? object->className() : "nil");
    session.application().delegate = delegate;
}

bool Application::setActivationPolicy(ActivationPolicy policy) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication setActivationPolicy:] ", nameOf(policy));
    session.application().policy = policy;
    return true;
}

ActivationPolicy Application::activationPolicy() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication activationPolicy]");
    return session.application().policy;
}

std::vector<Window> Application::windows() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication windows]");
    std::vector<Window> windows;
    for (const auto& window : session.windows().all()) {
        windows.emplace_back(window);
    }
    return windows;
}

void Application::setMainMenu(const Menu& menu) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication setMainMenu:] ", menu.state()->items.size(), " items");
    session.application().mainMenu = menu;
}

// The system takes its time.
void Application::activateIgnoringOtherApps(bool ignoring) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication activateIgnoringOtherApps:] ", ignoring);
    session.enqueueOnMainQueue([&session] {
        if (!session.refusesActivation()) {
            session.windows().setActive(true);
        }
    });
}

// Returns after the launch: whoever drives the session is the loop that delivers the events.
void Application::run() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication run]");
    session.application().isRunning = true;
    if (const auto delegate = session.application().delegate.lock()) {
        session.journal().record("-[", delegate->className(), " applicationDidFinishLaunching:]");
        delegate->applicationDidFinishLaunching();
    }
}

void Application::terminate() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSApplication terminate:]");
    if (const auto delegate = session.application().delegate.lock()) {
        session.journal().record("-[", delegate->className(), " applicationWillTerminate:]");
        delegate->applicationWillTerminate();
    }
    session.endApplication();
}

} // namespace kestrune
