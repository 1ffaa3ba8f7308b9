// The application on GNUstep: launched, used and ended through the real binding, in real time.
#include "Kestrune/KestruneApp.h"
#include "mac/ObjectCounterpart.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "tests/gnustep/harness/Allocations.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/SavedDefaults.h"
#include "tests/gnustep/suites/ApplicationFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the
// platform's.
extern "C" {
extern id NSApp;
}
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)

namespace kestrune::gnustep {
namespace {

using contract::Trust;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

const Point InTheRightBand{2000, 1078};
const Point HeldOnTheRight{2000, 1075};

// The watcher looks once a second; the rest is for a busy machine.
constexpr double SecondsForATick = 1.3;

bool isOfSomeClass(SEL method) {
    std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(classes.data(), static_cast<int>(classes.size()));
    return std::any_of(classes.begin(), classes.end(),
                       [method](Class type) { return class_getInstanceMethod(type, method) != nullptr; });
}

class ApplicationOnGNUstep : public ApplicationFixture {
protected:
    using ApplicationFixture::ApplicationFixture;

    bool isGuarded() { return world_.post(EventType::mouseMoved, InTheRightBand) == HeldOnTheRight; }
};

class WithoutPermission : public ApplicationOnGNUstep {
protected:
    WithoutPermission() : ApplicationOnGNUstep(Trust::notListed) {}
};

TEST_F(ApplicationOnGNUstep, LaunchesAsAnAccessoryWithItsDelegate) {
    launch();
    const mac::Pool pool;
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_STREQ(object_getClassName(send(NSApp, "delegate")), "KestruneApp");
    EXPECT_TRUE(isGuarded());
}

// Row after row of every menu, top to bottom.
std::vector<id> rowsOfMainMenu() {
    std::vector<id> all;
    const id items = send(send(NSApp, "mainMenu"), "itemArray");
    for (mac::Unsigned menu = 0; menu < mac::foundation.array.count(items); ++menu) {
        const id rows = send(send(mac::foundation.array.objectAtIndex(items, menu), "submenu"), "itemArray");
        for (mac::Unsigned row = 0; row < mac::foundation.array.count(rows); ++row) {
            all.push_back(mac::foundation.array.objectAtIndex(rows, row));
        }
    }
    return all;
}

TEST_F(ApplicationOnGNUstep, HasItsMainMenu) {
    launch();
    const mac::Pool pool;
    std::vector<std::string> titles;
    for (const id item : rowsOfMainMenu()) {
        titles.push_back(send<BOOL>(item, "isSeparatorItem") != 0
                             ? "---"
                             : mac::textOf(send(item, "title")) + " " +
                                   mac::textOf(send(item, "keyEquivalent")));
    }
    EXPECT_THAT(titles, ElementsAre("Settings… ,", "---", "Quit Kestrune q", "Undo z", "Redo z", "---",
                                    "Cut x", "Copy c", "Paste v", "Select All a"));
}

// Whoever is the first that has it, which only a selection decides.
TEST_F(ApplicationOnGNUstep, SendsActionsFromItsMainMenuThatSomeClassOfThePlatformHas) {
    launch();
    const mac::Pool pool;
    int count = 0;
    for (const id item : rowsOfMainMenu()) {
        const SEL action = send<SEL>(item, "action");
        if (action != nullptr && send(item, "target") == nullptr) {
            EXPECT_TRUE(isOfSomeClass(action)) << sel_getName(action);
            ++count;
        }
    }
    EXPECT_EQ(count, 7);
}

TEST_F(ApplicationOnGNUstep, ShowsItsIcon) {
    launch();
    const contract::ShownButton button = world_.statusButton();
    ASSERT_TRUE(button.image);
    EXPECT_EQ(button.image->name, "MenuBarIcon");
    EXPECT_TRUE(button.image->isTemplate);
    EXPECT_EQ(button.image->size, (Size{20, 20}));
    EXPECT_EQ(button.toolTip, "Kestrune — Pin the Dock to one screen");
}

TEST_F(ApplicationOnGNUstep, ShowsItsMenuAfterSetup) {
    launch();
    menu(); // built before the setup was found complete, and rebuilt when it opens
    EXPECT_THAT(menu(), ElementsAre("Pin Dock to: (disabled)", "✓  Left  (1512×982)  (Main)",
                                    "  Right  (1920×1080)", "---", "Disable", "---", "Settings…", "Quit"));
}

TEST_F(WithoutPermission, OffersTheSetup) {
    launch();
    EXPECT_THAT(menu().front(), StartsWith("Complete setup"));
    EXPECT_FALSE(isGuarded());
}

TEST_F(WithoutPermission, StartsTheGuardAtATickOfRealTime) {
    launch();
    EXPECT_TRUE(app_->isWatchingAccessibility());
    world_.letTimePass(SecondsForATick);
    EXPECT_TRUE(app_->isWatchingAccessibility());
    world_.setTrust(Trust::granted);
    EXPECT_FALSE(isGuarded());
    world_.letTimePass(SecondsForATick);
    EXPECT_TRUE(isGuarded());
    EXPECT_FALSE(app_->isWatchingAccessibility());
}

TEST_F(WithoutPermission, WaitsWithTheTickUntilTheMenuIsClosed) {
    launch();
    world_.openStatusMenu([&] {
        world_.setTrust(Trust::granted);
        world_.letTimePass(SecondsForATick);
        EXPECT_FALSE(isGuarded());
    });
    world_.letTimePass(SecondsForATick);
    EXPECT_TRUE(isGuarded());
}

TEST_F(WithoutPermission, FindsThePermissionWhenTheMenuOpens) {
    launch();
    world_.setTrust(Trust::granted);
    menu();
    EXPECT_TRUE(isGuarded());
    EXPECT_FALSE(app_->isWatchingAccessibility());
}

TEST_F(ApplicationOnGNUstep, HoldsEveryKindOfMotionThroughTheTap) {
    launch();
    for (const EventType type : {EventType::mouseMoved, EventType::leftMouseDragged,
                                 EventType::rightMouseDragged, EventType::otherMouseDragged}) {
        EXPECT_EQ(world_.post(type, InTheRightBand), HeldOnTheRight);
    }
    EXPECT_EQ(world_.post(EventType::mouseMoved, {700, 980}), (Point{700, 980}));
    EXPECT_EQ(world_.post(EventType::mouseMoved, {2000, 1074.5}), (Point{2000, 1074.5}));
}

TEST_F(ApplicationOnGNUstep, SwitchesItsTapOnAgain) {
    launch();
    for (const EventType reason : {EventType::tapDisabledByTimeout, EventType::tapDisabledByUserInput}) {
        world_.switchTapsOff(reason);
        EXPECT_TRUE(isGuarded());
    }
}

TEST_F(ApplicationOnGNUstep, ReadsTheMarginThatAnotherProcessStored) {
    launch();
    world_.store("blockMargin", 20.0);
    EXPECT_EQ(world_.post(EventType::mouseMoved, InTheRightBand), (Point{2000, 1059}));
}

TEST_F(ApplicationOnGNUstep, SwitchesTheGuardOffAndOn) {
    launch();
    menu(); // the next one is the one after setup
    choose("Disable");
    EXPECT_FALSE(isGuarded());
    EXPECT_EQ(savedDefault("isEnabled"), "0");
    choose("Enable");
    EXPECT_TRUE(isGuarded());
    EXPECT_EQ(savedDefault("isEnabled"), "1");
}

TEST_F(ApplicationOnGNUstep, PinsTheChosenDisplay) {
    launch();
    menu();
    choose("Right");
    EXPECT_EQ(savedDefault("pinnedScreenUUID"), RightUUID);
    EXPECT_EQ(savedDefault("hasCompletedOnboarding"), "1");
    EXPECT_EQ(menu()[2], "✓  Right  (1920×1080)");
    EXPECT_EQ(world_.post(EventType::mouseMoved, InTheRightBand), InTheRightBand);
    EXPECT_EQ(world_.post(EventType::mouseMoved, {700, 980}), (Point{700, 977}));
}

TEST_F(ApplicationOnGNUstep, FollowsTheDisplays) {
    launch();
    menu();
    choose("Right");
    world_.connect({left()});
    EXPECT_EQ(savedDefault("pinnedScreenUUID"), LeftUUID);
    EXPECT_EQ(world_.post(EventType::mouseMoved, {700, 980}), (Point{700, 980}));
    menu();
    EXPECT_EQ(menu()[1], "✓  Left  (1512×982)  (Main)");
    world_.connect({left(), right()});
    EXPECT_TRUE(isGuarded());
}

using ApplicationOnGNUstepDeathTest = ApplicationOnGNUstep;

std::shared_ptr<KestruneApp> delegateOfTheApplication() {
    const mac::Pool pool;
    auto* const counterpart =
        static_cast<Object::Counterpart*>(mac::RuntimeClass::target(send(NSApp, "delegate")));
    return std::dynamic_pointer_cast<KestruneApp>(counterpart->object.lock());
}

TEST_F(ApplicationOnGNUstepDeathTest, QuitsFromItsMenuAndStopsTheGuard) {
    const auto quit = [this] {
        static const std::shared_ptr<DockGuardController> guard = delegateOfTheApplication()->dockGuard();
        std::fputs(guard->isRunning() ? "The guard runs. " : "The guard has not started. ", stderr);
        std::atexit([] {
            std::fputs(guard->isRunning() ? "The guard still runs." : "The guard has stopped.", stderr);
        });
        choose("Quit");
    };
    const auto launchAndQuit = [&] {
        Application::sharedApplication();
        NotificationCenter::defaultCenter().addObserver(
            NotificationName("NSApplicationDidFinishLaunchingNotification"), OperationQueue::mainQueue(),
            [&](const Notification&) { MainActor::startTask(quit); });
        app_ = runKestrune();
    };
    EXPECT_EXIT(launchAndQuit(), testing::ExitedWithCode(0), "The guard runs. The guard has stopped.");
}

TEST_F(ApplicationOnGNUstep, RebuildsItsMenuAThousandTimesWithoutKeepingAnObject) {
    launch();
    const auto rebuild = [&](int times) {
        for (int time = 0; time < times; ++time) {
            const mac::Pool pool;
            app_->menuBarController()->rebuildMenu();
        }
    };
    countAllocations();
    // The menu from before counting is replaced first.
    rebuild(10);
    const AllocatedObjects before = allocatedObjects();
    ASSERT_GT(before.at("NSMenuItem"), 0U);
    rebuild(1000);
    EXPECT_THAT(growth(before, allocatedObjects()), IsEmpty());
}

} // namespace
} // namespace kestrune::gnustep
