// What surrounds the application on GNUstep beside displays, menus and windows.
#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "tests/contract/World.h"
#include "tests/gnustep/Objects.h"
#include "tests/gnustep/standins/LoginItem.h"
#include "tests/gnustep/standins/OperatingSystem.h"
#include "tests/gnustep/standins/Sparkle.h"

namespace kestrune::contract {

using namespace gnustep;

namespace {

// A class of windows that the platform does not have.
id windowClass(const std::string& name) {
    Class type = objc_getClass(name.c_str());
    if (type == nullptr) {
        type = objc_allocateClassPair(classNamed("NSWindow"), name.c_str(), 0);
        objc_registerClassPair(type);
    }
    return reinterpret_cast<id>(type);
}

void tellUserDriverDelegate(const char* selector) {
    const mac::Pool pool;
    send<void>(userDriverDelegate(), selector);
}

} // namespace

std::shared_ptr<void> World::showFrameworkWindow(std::string_view className, std::string_view title,
                                                 bool hidesOnDeactivate) {
    const mac::Pool pool;
    constexpr Rect Content(0, 0, 300, 120);
    const id window = mac::appKit.window.initWithContentRect(
        mac::foundation.object.alloc(windowClass(std::string(className))), Content,
        static_cast<mac::Unsigned>(WindowStyleMask::titled),
        static_cast<mac::Unsigned>(BackingStoreType::buffered), mac::truth(false));
    mac::appKit.window.setReleasedWhenClosed(window, mac::truth(false));
    mac::appKit.window.setHidesOnDeactivate(window, mac::truth(hidesOnDeactivate));
    mac::appKit.window.setTitle(window, objectFor(std::string(title)));
    mac::appKit.window.makeKeyAndOrderFront(window, nullptr);
    return {static_cast<void*>(window), [window](void*) {
                const mac::Pool poolOfTheEnd;
                const mac::Retained ending = mac::Retained::adopting(window);
                send<void>(window, "close");
            }};
}

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
