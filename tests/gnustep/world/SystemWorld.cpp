// What surrounds the application on GNUstep beside displays, menus and windows.
#include "mac/objc/Pool.h"
#include "tests/contract/World.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/LoginItem.h"
#include "tests/gnustep/standins/system/OperatingSystem.h"

namespace kestrune::contract {

using namespace gnustep;

namespace {

void tellUserDriverDelegate(const char* selector) {
    const mac::Pool pool;
    send<void>(userDriverDelegate(), selector);
}

} // namespace

AppServiceStatus World::loginItem() const { return gnustep::loginItem().status; }

void World::setLoginItem(AppServiceStatus status) { gnustep::loginItem().status = status; }

void World::requireApprovalOfLoginItem() { gnustep::loginItem().requiresApproval = true; }

void World::refuseLoginItemChanges(std::string description) {
    gnustep::loginItem().refusal = std::move(description);
}

std::vector<std::string> World::loginItemMessages() const { return gnustep::loginItem().messages; }

OperatingSystemVersion World::operatingSystemVersion() const { return SystemVersion; }

// What GNUstep makes of C.UTF-8, which the tests' environment has.
std::string World::localeIdentifier() const { return "en_US_POSIX"; }

void World::setUpdateFramework(UpdateFramework framework) { gnustep::setUpdateFramework(framework); }

std::vector<std::string> World::updateMessages() const { return gnustep::updateMessages(); }

std::optional<bool> World::asksForGentleReminders() const {
    const mac::Pool pool;
    const id delegate = userDriverDelegate();
    return delegate != nullptr
               ? std::optional(send<BOOL>(delegate, "supportsGentleScheduledUpdateReminders") != 0)
               : std::nullopt;
}

void World::announceUpdate() {
    const mac::Pool pool;
    const id update = send(classObject("NSObject"), "class");
    send<void>(userDriverDelegate(),
               "standardUserDriverWillHandleShowingUpdate:forUpdate:state:", mac::truth(true), update,
               update);
}

void World::finishUpdateSession() { tellUserDriverDelegate("standardUserDriverWillFinishUpdateSession"); }

void World::showUpdateAlert(const std::function<void()>& whileShown) {
    tellUserDriverDelegate("standardUserDriverWillShowModalAlert");
    whileShown();
    tellUserDriverDelegate("standardUserDriverDidShowModalAlert");
}

} // namespace kestrune::contract
