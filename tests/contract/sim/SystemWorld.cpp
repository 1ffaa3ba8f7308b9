// What surrounds the application beside displays, menus and windows: login items, the system, frameworks.
#include "sim/services/WindowState.h"
#include "sim/session/Session.h"
#include "tests/contract/World.h"

namespace kestrune::contract {

namespace {

static_assert(World::UpdateFailure == sim::Updates::StartFailure);

sim::UpdateFramework simulated(UpdateFramework framework) {
    switch (framework) {
    case UpdateFramework::missing:
        return sim::UpdateFramework::missing;
    case UpdateFramework::refusing:
        return sim::UpdateFramework::broken;
    case UpdateFramework::working:
        break;
    }
    return sim::UpdateFramework::working;
}

std::vector<std::string> journalLines(std::string_view beginning) {
    std::vector<std::string> lines;
    for (const std::string& line : sim::Session::current().journal().lines()) {
        if (line.starts_with(beginning)) {
            lines.push_back(line);
        }
    }
    return lines;
}

void tell(void (StandardUserDriverDelegate::*method)()) {
    if (const auto delegate = sim::Session::current().updates().delegate()) {
        (delegate.get()->*method)();
    }
}

} // namespace

std::shared_ptr<void> World::showFrameworkWindow(std::string_view className, std::string_view title,
                                                 bool hidesOnDeactivate) {
    sim::Windows& windows = sim::Session::current().windows();
    auto window = std::make_shared<Window::State>();
    window->className = className;
    window->title = title;
    window->styleMask = WindowStyleMask::titled;
    window->isReleasedWhenClosed = false;
    window->hidesOnDeactivate = hidesOnDeactivate;
    windows.add(window);
    windows.makeKeyAndOrderFront(window);
    return {window.get(), [window, &windows](void*) { windows.orderOut(window); }};
}

AppServiceStatus World::loginItem() const { return sim::Session::current().loginItem().status(); }

void World::setLoginItem(AppServiceStatus status) { sim::Session::current().user().setLoginItem(status); }

void World::requireApprovalOfLoginItem() { sim::Session::current().user().requireLoginItemApproval(true); }

void World::refuseLoginItemChanges(std::string description) {
    sim::Session::current().faults().refuseLoginItem(std::move(description));
}

std::vector<std::string> World::loginItemMessages() const { return journalLines("-[SMAppService "); }

OperatingSystemVersion World::operatingSystemVersion() const {
    return sim::Session::current().surroundings().operatingSystemVersion;
}

std::string World::localeIdentifier() const {
    return sim::Session::current().surroundings().localeIdentifier;
}

void World::setUpdateFramework(UpdateFramework framework) {
    sim::Session::current().updateSupply().framework = simulated(framework);
}

// The journal has what the seam was asked for, also when there is nobody to ask.
std::vector<std::string> World::updateMessages() const {
    const bool isThere = sim::Session::current().updateSupply().framework != sim::UpdateFramework::missing;
    return isThere ? journalLines("-[SPU") : std::vector<std::string>();
}

std::optional<bool> World::asksForGentleReminders() const {
    const auto delegate = sim::Session::current().updates().delegate();
    return delegate ? std::optional(delegate->supportsGentleScheduledUpdateReminders()) : std::nullopt;
}

void World::announceUpdate() { tell(&StandardUserDriverDelegate::standardUserDriverWillHandleShowingUpdate); }

void World::finishUpdateSession() {
    tell(&StandardUserDriverDelegate::standardUserDriverWillFinishUpdateSession);
}

void World::showUpdateAlert(const std::function<void()>& whileShown) {
    tell(&StandardUserDriverDelegate::standardUserDriverWillShowModalAlert);
    whileShown();
    tell(&StandardUserDriverDelegate::standardUserDriverDidShowModalAlert);
}

} // namespace kestrune::contract
