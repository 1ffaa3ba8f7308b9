// The application's process in a session: its end, by itself or by force, and a relaunch.
#include "platform/AccessibilityTrust.h"
#include "platform/Application.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "platform/StatusBar.h"
#include "platform/Timer.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingObjects.h"
#include "tests/contract/RecordingTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

// Everything that an application may leave behind, each with a mark in `calls` when it is called.
struct Leftovers {
    explicit Leftovers(std::vector<std::string>& calls)
        : application(Application::sharedApplication()),
          tap(received, {}),
          timer(Timer::scheduledTimer(1, true, [&calls](Timer& /*timer*/) { calls.emplace_back("timer"); })),
          observer(NotificationCenter::defaultCenter().addObserver(
              ApplicationDidChangeScreenParametersNotification, OperationQueue::mainQueue(),
              [&calls](const Notification&) { calls.emplace_back("observer"); })),
          statusItem(StatusBar::systemStatusBar().statusItem(VariableStatusItemLength)),
          delegate(std::make_shared<contract::RecordingApplicationDelegate>()),
          menuDelegate(std::make_shared<contract::RecordingMenuDelegate>()) {
        tap.schedule();
        MainActor::startTask([&calls] { calls.emplace_back("task"); });
        menu.setDelegate(menuDelegate);
        statusItem.setMenu(menu);
        application.setDelegate(delegate);
        application.setActivationPolicy(ActivationPolicy::accessory);
        application.setMainMenu(menu);
    }

    contract::ReceivedEvents received;
    Application application;
    contract::RecordingTap tap;
    Timer timer;
    NotificationObserver observer;
    Menu menu;
    StatusItem statusItem;
    std::shared_ptr<contract::RecordingApplicationDelegate> delegate;
    std::shared_ptr<contract::RecordingMenuDelegate> menuDelegate;
};

class SessionApplicationTest : public testing::Test {
protected:
    // What reaches an application when time passes, displays change and the pointer moves.
    void letThingsHappen() {
        session_.advance(3s);
        session_.changeDisplays({makeDisplay(1, "Other", {0, 0, 800, 600})});
        session_.movePointer(1, 1);
    }

    Session session_;
    std::vector<std::string> calls_;
};

TEST_F(SessionApplicationTest, EndsWithEverythingOfTheProcess) {
    const Leftovers leftovers(calls_);
    EXPECT_EQ(session_.taps().count(), 1U);
    EXPECT_EQ(session_.sources().count(), 1U);
    EXPECT_EQ(session_.timers().count(), 1U);
    EXPECT_EQ(session_.observers().count(), 1U);
    EXPECT_EQ(session_.statusItems().shown().size(), 1U);
    session_.user().endApplication();
    EXPECT_EQ(session_.taps().count(), 0U);
    EXPECT_EQ(session_.sources().count(), 0U);
    EXPECT_EQ(session_.timers().count(), 0U);
    EXPECT_EQ(session_.observers().count(), 0U);
    EXPECT_TRUE(session_.statusItems().shown().empty());
    EXPECT_FALSE(session_.application().exists);
    EXPECT_EQ(session_.application().policy, ActivationPolicy::regular);
    EXPECT_FALSE(session_.application().mainMenu);
    EXPECT_FALSE(Application::nsApp());
}

TEST_F(SessionApplicationTest, CallsNothingOfAProcessThatWasEndedByForce) {
    const Leftovers leftovers(calls_);
    session_.user().endApplication();
    letThingsHappen();
    EXPECT_THAT(calls_, IsEmpty());
    EXPECT_THAT(leftovers.received, IsEmpty());
    EXPECT_THAT(leftovers.delegate->received(), IsEmpty());
    EXPECT_FALSE(session_.user().openMenu(StatusItemIndex{0}));
    EXPECT_EQ(leftovers.menuDelegate->openings(), 0);
}

TEST_F(SessionApplicationTest, CallsNothingOfAProcessThatTerminated) {
    Leftovers leftovers(calls_);
    leftovers.application.terminate();
    leftovers.application.terminate();
    letThingsHappen();
    EXPECT_THAT(leftovers.delegate->received(), ElementsAre("applicationWillTerminate:"));
    EXPECT_THAT(calls_, IsEmpty());
    EXPECT_THAT(leftovers.received, IsEmpty());
}

TEST_F(SessionApplicationTest, ClosesItsMenuAndFiresNoTimerThatWaitedForThat) {
    const Leftovers leftovers(calls_);
    session_.advance(0s);
    calls_.clear();
    ASSERT_TRUE(session_.user().openMenu(StatusItemIndex{0}));
    session_.advance(2s);
    session_.user().endApplication();
    EXPECT_EQ(session_.menus().place(), std::nullopt);
    EXPECT_THAT(calls_, IsEmpty());
}

TEST_F(SessionApplicationTest, LeavesOnlyHarmlessObjects) {
    {
        Leftovers leftovers(calls_);
        session_.user().endApplication();
        leftovers.timer.invalidate();
        leftovers.statusItem.setMenu(leftovers.menu);
        leftovers.statusItem.button()->setToolTip("tool tip");
        leftovers.tap.enable(true);
        leftovers.tap.unschedule();
        letThingsHappen();
        EXPECT_THAT(leftovers.received, IsEmpty());
    }
    EXPECT_TRUE(session_.statusItems().shown().empty());
    EXPECT_THAT(calls_, IsEmpty());
    EXPECT_EQ(session_.liveObjects(), 0);
}

TEST_F(SessionApplicationTest, StartsAnotherProcessWithNothingOfTheOneBefore) {
    const Leftovers former(calls_);
    session_.user().endApplication();
    const Leftovers current(calls_);
    EXPECT_EQ(session_.application().delegate.lock(), current.delegate);
    EXPECT_EQ(session_.timers().count(), 1U);
    session_.advance(1s);
    session_.changeDisplays({makeDisplay(1, "Other", {0, 0, 800, 600})});
    session_.movePointer(1, 1);
    EXPECT_THAT(calls_, ElementsAre("task", "timer", "observer"));
    EXPECT_THAT(former.received, IsEmpty());
    EXPECT_EQ(current.received.size(), 1U);
    EXPECT_TRUE(session_.user().openMenu(StatusItemIndex{0}));
    EXPECT_EQ(former.menuDelegate->openings(), 0);
    EXPECT_EQ(current.menuDelegate->openings(), 1);
}

TEST_F(SessionApplicationTest, StartsAnotherProcessWithAMainThreadThatIsFree) {
    const Leftovers former(calls_);
    session_.faults().stallMainThread(10s);
    session_.user().endApplication();
    const Leftovers current(calls_);
    session_.changeDisplays({makeDisplay(1, "Other", {0, 0, 800, 600})});
    EXPECT_THAT(calls_, ElementsAre("observer"));
}

// Only a running process remembers a grant whose row is gone.
TEST_F(SessionApplicationTest, StartsAnotherProcessWithoutTheGrantOfADeletedRow) {
    session_.user().removePermissionRow();
    EXPECT_TRUE(isProcessTrusted());
    session_.user().endApplication();
    EXPECT_FALSE(isProcessTrusted());
    EXPECT_EQ(session_.accessibility().permission(), Permission::notListed);
}

TEST_F(SessionApplicationTest, StartsAnotherProcessWithTheGrantOfTheRow) {
    session_.user().endApplication();
    EXPECT_TRUE(isProcessTrusted());
}

TEST_F(SessionApplicationTest, KnowsWhetherItRuns) {
    Application application = Application::sharedApplication();
    EXPECT_FALSE(session_.application().isRunning);
    application.run();
    EXPECT_TRUE(session_.application().isRunning);
    application.terminate();
    EXPECT_FALSE(session_.application().isRunning);
}

TEST(SessionApplicationPolicy, IsRegularUnlessTheBundleSaysOtherwise) {
    for (const bool isAgent : {false, true}) {
        SessionOptions options;
        options.bundle.infoDictionary["LSUIElement"] = {isAgent};
        Session session(std::move(options));
        Application::sharedApplication();
        EXPECT_EQ(session.application().policy,
                  isAgent ? ActivationPolicy::accessory : ActivationPolicy::regular);
        Application::nsApp()->setActivationPolicy(ActivationPolicy::prohibited);
        Application::sharedApplication();
        EXPECT_EQ(session.application().policy, ActivationPolicy::prohibited);
    }
}

TEST_F(SessionApplicationTest, DropsItsMainQueueWithItsProcess) {
    Application::sharedApplication();
    session_.mainThread().enqueue([this] { calls_.emplace_back("former"); });
    session_.user().endApplication();
    Application::sharedApplication();
    session_.mainThread().enqueue([this] { calls_.emplace_back("current"); });
    session_.advance(1s);
    EXPECT_THAT(calls_, ElementsAre("current"));
}

// A tap's callback is the application's too and may end the process.
TEST_F(SessionApplicationTest, MayEndWhileATapHandlesAnEvent) {
    Leftovers leftovers(calls_);
    contract::RecordingTap second(leftovers.received, {});
    second.schedule();
    second.onPointerEvent([this](Event* event) {
        session_.user().endApplication();
        return event;
    });
    const Delivery delivery = session_.movePointer(1, 1);
    EXPECT_FALSE(delivery.swallowed);
    EXPECT_EQ(leftovers.received.size(), 1U);
    EXPECT_EQ(session_.taps().count(), 0U);
}

} // namespace
} // namespace kestrune::sim
