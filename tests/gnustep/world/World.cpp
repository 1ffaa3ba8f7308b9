// The contract tests' world on GNUstep: what GNUstep has is GNUstep's own, the rest is stood in for.
//
// Menus are GNUstep's objects and perform their items themselves, but nobody tracks them here: what opening,
// choosing and pressing a key do beyond that is what we believe the Mac does, and no proof of it. So is that
// another process's change of the defaults is seen. Windows and what is in them get events and messages of
// GNUstep's own; a real mouse presses them in the process's test.
#include "tests/contract/World.h"

#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/gnustep/standins/appkit/Activation.h"
#include "tests/gnustep/standins/appkit/ActivationPolicy.h"
#include "tests/gnustep/standins/appkit/Screens.h"
#include "tests/gnustep/standins/appkit/StatusItems.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/AccessibilityTrust.h"
#include "tests/gnustep/standins/system/CrashReporter.h"
#include "tests/gnustep/standins/system/DisplayUUIDs.h"
#include "tests/gnustep/standins/system/EventTaps.h"
#include "tests/gnustep/standins/system/LoginItem.h"
#include "tests/gnustep/standins/system/MainBundle.h"
#include "tests/gnustep/standins/system/OpenedURLs.h"
#include "tests/gnustep/standins/system/RunLoopSources.h"
#include "tests/gnustep/standins/system/RunningApplication.h"
#include "tests/gnustep/standins/system/UnifiedLog.h"
#include "tests/mac/OpenMenu.h"

#include <utility>

extern "C" {
// NOLINTNEXTLINE(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
extern id NSApp;
}

namespace kestrune::contract {

using namespace gnustep;
using native::itemsOf;
using native::OpenMenu;
using native::rowOf;

namespace {

// GNUstep's own search for a key equivalent takes no notice of the shift key, nor of disabled items.
id itemForKey(id menu, std::string_view character, EventModifierFlags modifiers) {
    for (const id item : itemsOf(menu)) {
        if (const id found = itemForKey(send(item, "submenu"), character, modifiers)) {
            return found;
        }
        const ShownRow row = rowOf(item);
        if (row.isEnabled && row.keyEquivalent == character && row.modifiers == modifiers) {
            return item;
        }
    }
    return nullptr;
}

void runLoopUntil(id mode, id date) {
    send<BOOL>(send(classObject("NSRunLoop"), "currentRunLoop"), "runMode:beforeDate:", mode, date);
}

} // namespace

struct World::State {
    OpenMenu openMenu{setTracksMenu};
};

World::World(const BundleFiles& bundle) : state_(new State) {
    static const bool isInstalled = (installStandIns(), true);
    static_cast<void>(isInstalled);
    if (NSApp != nullptr) {
        fatal("A process has one application, and an earlier test used it: run each test by itself, as ctest "
              "does.");
    }
    const mac::Pool pool;
    setMainBundle(bundle, privateHome());
    gnustep::setUpdateFramework(UpdateFramework::working);
    gnustep::loginItem() = {};
    accessibilityRow() = {};
    resetActivationPolicy();
    gnustep::loggedMessages().clear();
    gnustep::openedURLs().clear();
    refuseOpeningURLs(false);
    removeRunLoopSources();
    setUUIDStringsFail(false);
    connectDisplays({connectedDisplay(1, {0, 0, 1512, 982})});
}

World::~World() = default;

void World::connect(const std::vector<ConnectedDisplay>& displays) { connectDisplays(displays); }

void World::setMainDisplay(std::optional<std::size_t> index) { setMainScreen(index); }

void World::failUUIDStrings() { setUUIDStringsFail(true); }

void World::setTrust(Trust trust) { accessibilityRow().trust = trust; }

Trust World::trust() const { return accessibilityRow().trust; }

bool World::isTrustDialogShown() const { return accessibilityRow().isDialogShown; }

void World::followTrustDialog() {
    accessibilityRow().isDialogShown = false;
    activateAnotherApplication();
}

std::optional<DeliveredEvent> World::deliver(EventType type, Point location) {
    return postEvent(type, location);
}

void World::switchTapsOff(EventType reason) { gnustep::switchTapsOff(reason); }

std::vector<LoggedMessage> World::loggedMessages() const { return gnustep::loggedMessages(); }

void World::letTimePass(double seconds) {
    const mac::Pool pool;
    const id limit = send(classObject("NSDate"), "dateWithTimeIntervalSinceNow:", seconds);
    while (send<double>(limit, "timeIntervalSinceNow") > 0) {
        runLoopUntil(state_->openMenu.runLoopMode(), limit);
    }
    // What is due by now, also when nothing was to wait for.
    runLoopUntil(state_->openMenu.runLoopMode(), limit);
}

void World::launch(const std::function<void()>& work) { runUntilLaunched(work); }

void World::catchTermination(const std::function<void()>& work) { runWork(work); }

void World::activateApplication() { setActive(true); }

void World::activateAnotherApplication() { setActive(false); }

// GNUstep tells no delegate of it.
bool World::reopenApplication() {
    const mac::Pool pool;
    setActive(true);
    const id delegate = send(NSApp, "delegate");
    constexpr const char* Reopen = "applicationShouldHandleReopen:hasVisibleWindows:";
    return send<BOOL>(delegate, "respondsToSelector:", sel_registerName(Reopen)) == 0 ||
           send<BOOL>(delegate, Reopen, NSApp, mac::truth(hasWindowOnScreenOrInDock())) != 0;
}

bool World::isActive() const { return gnustep::isActive(); }

ActivationPolicy World::activationPolicy() const { return gnustep::activationPolicy(); }

std::size_t World::statusItemCount() const { return gnustep::statusItemCount(); }

ShownButton World::statusButton(std::size_t statusItem) const {
    const mac::Pool pool;
    return describeButton(buttonOfStatusItem(statusItem));
}

bool World::openStatusMenu(const std::function<void()>& whileOpen, std::size_t statusItem) {
    const mac::Pool pool;
    return state_->openMenu.open(menuOfStatusItem(statusItem), whileOpen);
}

bool World::openMainMenu(std::size_t item, const std::function<void()>& whileOpen) {
    const mac::Pool pool;
    const id menu = send(NSApp, "mainMenu");
    if (!isActive() || activationPolicy() != ActivationPolicy::regular ||
        static_cast<mac::Integer>(item) >= send<mac::Integer>(menu, "numberOfItems")) {
        return false;
    }
    return state_->openMenu.open(send(send(menu, "itemAtIndex:", static_cast<mac::Integer>(item)), "submenu"),
                                 whileOpen);
}

std::vector<ShownRow> World::openMenuRows() const {
    const mac::Pool pool;
    return state_->openMenu.rows();
}

void World::chooseRow(std::size_t row) {
    const mac::Pool pool;
    state_->openMenu.chooseRow(row);
}

// Without a pool: when the process is to end, GNUstep has drained it already.
void World::pressKey(std::string_view character, EventModifierFlags modifiers) {
    const id menu = state_->openMenu.get() != nullptr ? state_->openMenu.get()
                                                      : (isActive() ? send(NSApp, "mainMenu") : nullptr);
    if (const id item = itemForKey(menu, character, modifiers)) {
        state_->openMenu.choose(item);
    } else if (state_->openMenu.get() == nullptr) {
        pressKeyInWindow(character, modifiers);
    }
}

void World::clickTitleBar(std::size_t window) {
    const mac::Pool pool;
    gnustep::clickTitleBar(visibleWindows().at(window));
}

void World::clickSwitch(std::size_t index, std::size_t window) {
    const mac::Pool pool;
    click(viewsIn(visibleWindows().at(window), "NSSwitch").at(index));
}

std::string World::crashReportMessage() const { return gnustep::crashReportMessage(); }

std::vector<std::string> World::openedURLs() const { return gnustep::openedURLs(); }

void World::letNobodyOpenURLs() { refuseOpeningURLs(true); }

} // namespace kestrune::contract
