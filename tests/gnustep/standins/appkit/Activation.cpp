// Which application is active, and what that means for the key window. GNUstep is active from its launch on
// and whenever the X server gives it the focus, gives the keys to windows of inactive applications, and to
// nobody when the one that has them leaves the screen.
//
// This is what we believe the Mac does, and no proof of it: an application is not active when it is launched;
// it asks to be activated and is, some time later, or when the user clicks into one of its windows; before,
// no window of its has the keys; when the one that has them leaves the screen the next one behind gets them.
#include "tests/gnustep/standins/appkit/Activation.h"

#include "mac/objc/Pool.h"
#include "platform/MainActor.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"
#include "tests/mac/EventTypes.h"

#include <algorithm>

// NOLINTNEXTLINE(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
extern "C" id NSApp;

namespace kestrune::gnustep {

using native::AppKitDefined;
using native::LeftMouseDown;

namespace {

constexpr short FocusIn = 5;
constexpr short FocusOut = 6;
constexpr unsigned Out = 2; // GNUstep's NSWindowOrderingMode

struct Activation {
    bool isLaunching = false;
    id wantedKey = nullptr; // the window that was made key last; not retained

    // GNUstep's own.
    Method<void, BOOL> activate = nullptr;
    Method<void> deactivate = nullptr;
    Method<void> finishLaunching = nullptr;
    Method<void> makeKeyWindow = nullptr;
    Method<void, id> sendEvent = nullptr;
    Method<void, unsigned, mac::Integer> orderWindow = nullptr;
};

Activation& activation() {
    static Activation state;
    return state;
}

void giveKeys(id window) { activation().makeKeyWindow(window, sel_registerName("makeKeyWindow")); }

void giveKeysToSomeWindow() {
    const mac::Pool pool;
    const std::vector<id> windows = visibleWindows();
    if (windows.empty() || send<BOOL>(windows.front(), "isKeyWindow") != 0) {
        return;
    }
    const auto wanted = std::find(windows.begin(), windows.end(), activation().wantedKey);
    giveKeys(wanted != windows.end() ? *wanted : windows.front());
}

void finishLaunching(id application, SEL selector) {
    activation().isLaunching = true;
    activation().finishLaunching(application, selector);
    activation().isLaunching = false;
}

void activateIgnoringOtherApps(id, SEL, BOOL) {
    if (!activation().isLaunching) {
        MainActor::startTask([] { setActive(true); });
    }
}

void deactivate(id, SEL) {}

void makeKeyWindow(id window, SEL) {
    activation().wantedKey = window;
    whenDeallocated(window, &activation(), [window] {
        if (activation().wantedKey == window) {
            activation().wantedKey = nullptr;
        }
    });
    if (isActive()) {
        giveKeys(window);
    }
}

void sendEvent(id window, SEL selector, id event) {
    const auto type = send<mac::Unsigned>(event, "type");
    if (type == AppKitDefined) {
        const auto subtype = send<short>(event, "subtype");
        if (subtype == FocusIn || subtype == FocusOut) {
            return;
        }
    }
    if (type == LeftMouseDown) {
        setActive(true);
    }
    activation().sendEvent(window, selector, event);
}

void orderWindow(id window, SEL selector, unsigned place, mac::Integer other) {
    const bool losesKeys = place == Out && send<BOOL>(window, "isKeyWindow") != 0;
    activation().orderWindow(window, selector, place, other);
    if (losesKeys) {
        send<void>(window, "resignKeyWindow");
        giveKeysToSomeWindow();
    }
}

} // namespace

void installActivation() {
    const Class application = classNamed("NSApplication");
    const Class window = classNamed("NSWindow");
    Activation& before = activation();
    before.activate = replaceMethod(application, "activateIgnoringOtherApps:", activateIgnoringOtherApps);
    before.deactivate = replaceMethod(application, "deactivate", deactivate);
    before.finishLaunching = replaceMethod(application, "finishLaunching", finishLaunching);
    before.makeKeyWindow = replaceMethod(window, "makeKeyWindow", makeKeyWindow);
    before.sendEvent = replaceMethod(window, "sendEvent:", sendEvent);
    before.orderWindow = replaceMethod(window, "orderWindow:relativeTo:", orderWindow);
}

void setActive(bool isActive) {
    if (isActive == gnustep::isActive()) {
        return;
    }
    if (isActive) {
        activation().activate(NSApp, sel_registerName("activateIgnoringOtherApps:"), mac::truth(true));
        giveKeysToSomeWindow();
    } else {
        activation().deactivate(NSApp, sel_registerName("deactivate"));
    }
}

bool isActive() { return send<BOOL>(NSApp, "isActive") != 0; }

} // namespace kestrune::gnustep
