// The contract tests' world on a Mac. It arranges and sees what the platform itself lets a test arrange and
// see, with no permission, no second display and no stand-in; whatever else a test asks for, skips that test.
//
// Menus are AppKit's objects, enable and perform their items themselves, but nobody tracks them: that their
// delegate is told when they open is no proof of the Mac. Nor is that the application's delegate is asked
// when it is opened again.
#include "tests/contract/World.h"

#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/AccessibilityTrust.h"
#include "tests/mac/EventLoop.h"
#include "tests/mac/Objects.h"
#include "tests/mac/OpenMenu.h"
#include "tests/mac/Preparation.h"
#include "tests/mac/RunningApplication.h"
#include "tests/mac/ShownWindows.h"
#include "tests/mac/Skips.h"
#include "tests/mac/StatusItems.h"
#include "tests/mac/WorldState.h"

#include <algorithm>
#include <utility>

extern "C" {
// NOLINTNEXTLINE(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
extern id NSApp;
// NOLINTNEXTLINE(readability-identifier-naming)
extern const id NSDefaultRunLoopMode;
}

namespace kestrune::contract {

using namespace native;

namespace {

id mainBundle() { return mac::foundation.bundle.mainBundle(); }

bool isInInfoFile(const std::string& key, const std::variant<std::string, std::int64_t>& value) {
    const id expected = std::visit([](const auto& plain) { return objectFor(plain); }, value);
    const id there = send(mainBundle(), "objectForInfoDictionaryKey:", objectFor(key));
    return send<BOOL>(expected, "isEqual:", there) != 0;
}

// A process has one bundle, which has what most tests ask for and may have more.
bool isInMainBundle(const BundleFiles& files) {
    return std::all_of(files.infoDictionary.begin(), files.infoDictionary.end(),
                       [](const auto& entry) { return isInInfoFile(entry.first, entry.second); }) &&
           std::all_of(files.localizedStrings.begin(), files.localizedStrings.end(),
                       [](const auto& entry) {
                           return entry.second ==
                                  mac::textOf(mac::foundation.bundle.localizedString(
                                      mainBundle(), objectFor(entry.first), nullptr, nullptr));
                       }) &&
           std::all_of(files.imageNames.begin(), files.imageNames.end(), [](const std::string& name) {
               return send(mainBundle(), "pathForImageResource:", objectFor(name)) != nullptr;
           });
}

// Or AppKit asks, after a test in which a process had to die, whether that one's windows are to come back.
void leaveWindowsBehind(id defaults) {
    send<void>(defaults, "registerDefaults:",
               send(classObject("NSDictionary"), "dictionaryWithObject:forKey:", objectFor(true),
                    objectFor(std::string("ApplePersistenceIgnoreState"))));
}

// What an earlier test stored.
void forgetDefaults(id defaults) {
    const std::string identifier = mac::textOf(send(mainBundle(), "bundleIdentifier"));
    if (identifier == "org.kestrune.Kestrune") {
        fatal("A test with the application's own identifier would change the user's settings.");
    }
    const id domain = identifier.empty()
                          ? send(send(classObject("NSProcessInfo"), "processInfo"), "processName")
                          : objectFor(identifier);
    send<void>(defaults, "removePersistentDomainForName:", domain);
}

// Whether it came about in time.
bool waitUntil(const std::function<bool()>& isReached) {
    constexpr int Looks = 100;
    constexpr double UntilTheNext = 0.02; // seconds
    for (int look = 0; look < Looks && !isReached(); ++look) {
        runEventLoop(NSDefaultRunLoopMode, UntilTheNext);
    }
    return isReached();
}

} // namespace

World::World(const BundleFiles& bundle) : state_(new State) {
    stopIfSkipped();
    if (NSApp != nullptr) {
        fatal("A process has one application, and an earlier test used it: run each test by itself, as ctest "
              "does.");
    }
    const mac::Pool pool;
    static const bool isPrepared = (preparation()(), true);
    static_cast<void>(isPrepared);
    if (!isInMainBundle(bundle)) {
        cannotArrange("bundle for each test");
    }
    const id defaults = mac::foundation.userDefaults.standardUserDefaults();
    forgetDefaults(defaults);
    leaveWindowsBehind(defaults);
    watchStatusItems();
}

World::~World() = default;

// No row at all is not told from one that is switched off.
void World::setTrust(Trust trust) {
    if (trust != Trust::notListed || isProcessTrusted()) {
        cannotArrange("Accessibility permission that a test may give or take");
    }
}

void World::letTimePass(double seconds) { runEventLoop(state_->openMenu.runLoopMode(), seconds); }

void World::launch(const std::function<void()>& work) { runUntilLaunched(work); }

// The system may refuse it to a program that was started from a terminal.
void World::activateApplication() {
    const mac::Pool pool;
    mac::appKit.application.activateIgnoringOtherApps(mac::appKit.application.sharedApplication(),
                                                      mac::truth(true));
    if (!waitUntil([this] { return isActive(); })) {
        cannotArrange("place in front for this test, as another application stays active");
    }
}

// The Finder runs wherever somebody is logged in.
void World::activateAnotherApplication() {
    constexpr mac::Unsigned IgnoringOtherApps = 2; // NSApplicationActivateIgnoringOtherApps
    const mac::Pool pool;
    const id applications =
        send(classObject("NSRunningApplication"),
             "runningApplicationsWithBundleIdentifier:", objectFor(std::string("com.apple.finder")));
    send<BOOL>(send(applications, "lastObject"), "activateWithOptions:", IgnoringOtherApps);
    if (!waitUntil([this] { return !isActive(); })) {
        cannotArrange("other application that comes to the front for this test");
    }
}

bool World::isActive() const { return send<BOOL>(NSApp, "isActive") != 0; }

ActivationPolicy World::activationPolicy() const {
    return static_cast<ActivationPolicy>(send<mac::Integer>(NSApp, "activationPolicy"));
}

bool World::reopenApplication() {
    const mac::Pool pool;
    activateApplication();
    const id delegate = send(NSApp, "delegate");
    constexpr const char* Reopen = "applicationShouldHandleReopen:hasVisibleWindows:";
    return send<BOOL>(delegate, "respondsToSelector:", sel_registerName(Reopen)) == 0 ||
           send<BOOL>(delegate, Reopen, NSApp, mac::truth(hasWindowOnScreenOrInDock())) != 0;
}

ShownButton World::statusButton(std::size_t statusItem) const {
    const mac::Pool pool;
    return describeButton(send(native::statusItem(statusItem), "button"));
}

bool World::openStatusMenu(const std::function<void()>& whileOpen, std::size_t statusItem) {
    const mac::Pool pool;
    return state_->openMenu.open(send(native::statusItem(statusItem), "menu"), whileOpen);
}

bool World::openMainMenu(std::size_t item, const std::function<void()>& whileOpen) {
    const mac::Pool pool;
    const id menu = send(NSApp, "mainMenu");
    if (!isActive() || activationPolicy() != ActivationPolicy::regular ||
        static_cast<mac::Integer>(item) >= send<mac::Integer>(menu, "numberOfItems")) {
        cannotArrange("menu bar that a test can look at");
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

void World::pressKey(std::string_view character, EventModifierFlags modifiers) {
    const mac::Pool pool;
    if (state_->openMenu.get() != nullptr) {
        cannotArrange("menu that is tracked for a test's keys");
    }
    if (modifiers != EventModifierFlags::none) {
        cannotArrange("keyboard for a test to press Command on");
    }
    pressKeyInWindow(character, modifiers);
}

void World::clickSwitch(std::size_t index, std::size_t window) {
    const mac::Pool pool;
    send<void>(viewsIn(visibleWindows().at(window), "NSSwitch").at(index), "performClick:", id{});
}

} // namespace kestrune::contract
