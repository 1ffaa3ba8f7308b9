// The window server waits for an active tap, and what happens when it waits in vain.
#include "sim/session/Session.h"
#include "tests/contract/RecordingTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using contract::ReceivedEvent;
using contract::ReceivedEvents;
using contract::RecordingTap;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Point Sent{10, 10};
constexpr Point Moved{70, 70};

contract::TapOptions named(const char* name, EventTapOptions options) {
    contract::TapOptions result;
    result.name = name;
    result.options = options;
    return result;
}

class TapTimeoutTest : public testing::Test {
protected:
    TapTimeoutTest() {
        EXPECT_TRUE(tap_.schedule());
        tap_.onPointerEvent([](Event* event) {
            event->setLocation(Moved);
            return event;
        });
    }

    Point post() { return session_.post(EventType::mouseMoved, Sent).delivered; }

    Session session_;
    ReceivedEvents received_;
    RecordingTap tap_{received_, named("tap", EventTapOptions::defaultTap)};
};

const ReceivedEvent TimeoutNotice{"tap", EventType::tapDisabledByTimeout, {}};
const ReceivedEvent UserInputNotice{"tap", EventType::tapDisabledByUserInput, {}};

TEST_F(TapTimeoutTest, HoldsNothingUpWhileTheMainThreadIsIdle) {
    EXPECT_EQ(post(), Moved);
    EXPECT_EQ(session_.longestHold(), 0s);
    EXPECT_EQ(session_.clock().now(), 0s);
}

TEST_F(TapTimeoutTest, HoldsAnEventUpUntilTheMainThreadIsFree) {
    session_.faults().stallMainThread(400ms);
    EXPECT_EQ(post(), Moved);
    EXPECT_EQ(session_.longestHold(), 400ms);
    EXPECT_EQ(session_.clock().now(), 400ms);
    EXPECT_EQ(post(), Moved);
    EXPECT_EQ(session_.clock().now(), 400ms);
}

TEST_F(TapTimeoutTest, WaitsUntilJustBeforeTheTimeout) {
    session_.faults().stallMainThread(Session::TapTimeout - 1ns);
    EXPECT_EQ(post(), Moved);
    EXPECT_EQ(session_.taps().enabledCount(), 1U);
}

TEST_F(TapTimeoutTest, LetsTheEventGoOnUnchangedAfterTheTimeout) {
    session_.faults().stallMainThread(Session::TapTimeout);
    EXPECT_EQ(post(), Sent);
    EXPECT_EQ(session_.longestHold(), Session::TapTimeout);
    EXPECT_EQ(session_.taps().enabledCount(), 0U);
}

TEST_F(TapTimeoutTest, TellsTheApplicationOnceItsMainThreadIsFree) {
    session_.faults().stallMainThread(3s);
    EXPECT_EQ(post(), Sent);
    EXPECT_THAT(received_, IsEmpty());
    session_.advance(1999ms);
    EXPECT_THAT(received_, IsEmpty());
    session_.advance(1ms);
    EXPECT_THAT(received_, ElementsAre(TimeoutNotice));
    session_.advance(10s);
    post();
    EXPECT_THAT(received_, ElementsAre(TimeoutNotice));
}

TEST_F(TapTimeoutTest, DoesNotWaitForATapThatIsSwitchedOff) {
    session_.faults().stallMainThread(10s);
    post();
    post();
    post();
    EXPECT_EQ(session_.clock().now(), Session::TapTimeout);
}

TEST_F(TapTimeoutTest, WorksAgainOnceTheApplicationEnabledTheTap) {
    tap_.onDisabled([this](EventType) { tap_.enable(true); });
    session_.faults().stallMainThread(2s);
    EXPECT_EQ(post(), Sent);
    session_.advance(1s);
    EXPECT_EQ(post(), Moved);
}

TEST_F(TapTimeoutTest, CountsTheLongerOfTwoStalls) {
    session_.faults().stallMainThread(800ms);
    session_.faults().stallMainThread(300ms);
    post();
    EXPECT_EQ(session_.longestHold(), 800ms);
}

TEST_F(TapTimeoutTest, KeepsTheLongestHold) {
    session_.faults().stallMainThread(500ms);
    post();
    session_.faults().stallMainThread(200ms);
    post();
    EXPECT_EQ(session_.longestHold(), 500ms);
    EXPECT_EQ(session_.clock().now(), 700ms);
}

TEST_F(TapTimeoutTest, DoesNotHoldUpEventsThatNoActiveTapReceives) {
    session_.faults().stallMainThread(10s);
    session_.post(EventType::leftMouseDragged, Sent);
    EXPECT_EQ(session_.longestHold(), 0s);
    EXPECT_EQ(session_.taps().enabledCount(), 1U);
    tap_.enable(false);
    post();
    EXPECT_EQ(session_.longestHold(), 0s);
}

TEST_F(TapTimeoutTest, HoldsEveryEventUpWhenThePermissionIsGone) {
    tap_.onDisabled([this](EventType) { tap_.enable(true); });
    for (const Permission permission :
         {Permission::switchedOff, Permission::rowDeleted, Permission::notListed}) {
        session_.user().setPermission(permission);
        received_.clear();
        const Duration before = session_.clock().now();
        EXPECT_EQ(post(), Sent);
        EXPECT_THAT(received_, ElementsAre(TimeoutNotice));
        EXPECT_EQ(post(), Sent);
        EXPECT_EQ(session_.clock().now() - before, 2 * Session::TapTimeout);
    }
    EXPECT_EQ(session_.longestHold(), Session::TapTimeout);
}

TEST_F(TapTimeoutTest, HoldsUpOneEventWhenTheApplicationTearsTheTapDown) {
    tap_.onDisabled([this](EventType) { tap_.unschedule(); });
    session_.user().setPermission(Permission::switchedOff);
    post();
    post();
    EXPECT_EQ(session_.clock().now(), Session::TapTimeout);
}

TEST_F(TapTimeoutTest, WorksAgainOnceThePermissionIsBack) {
    session_.user().setPermission(Permission::switchedOff);
    post();
    session_.user().setPermission(Permission::granted);
    tap_.enable(true);
    EXPECT_EQ(post(), Moved);
}

TEST_F(TapTimeoutTest, TellsAboutUserInputAtOnceWhileTheMainThreadIsIdle) {
    session_.faults().disableTaps(EventType::tapDisabledByUserInput);
    EXPECT_THAT(received_, ElementsAre(UserInputNotice));
    EXPECT_EQ(post(), Sent);
}

TEST_F(TapTimeoutTest, TellsAboutUserInputOnceTheMainThreadIsFree) {
    session_.faults().stallMainThread(500ms);
    session_.faults().disableTaps(EventType::tapDisabledByUserInput);
    EXPECT_THAT(received_, IsEmpty());
    session_.advance(500ms);
    EXPECT_THAT(received_, ElementsAre(UserInputNotice));
}

TEST_F(TapTimeoutTest, TellsNothingToATapThatLeftTheRunLoopMeanwhile) {
    session_.faults().stallMainThread(500ms);
    session_.faults().disableTaps(EventType::tapDisabledByUserInput);
    tap_.unschedule();
    session_.advance(500ms);
    EXPECT_THAT(received_, IsEmpty());
}

TEST_F(TapTimeoutTest, TellsNothingToATapThatTheApplicationDisabled) {
    tap_.enable(false);
    session_.faults().disableTaps(EventType::tapDisabledByUserInput);
    EXPECT_THAT(received_, IsEmpty());
}

TEST_F(TapTimeoutTest, NeitherWaitsForNorSwitchesOffATapThatOnlyListens) {
    RecordingTap listener(received_, named("listener", EventTapOptions::listenOnly));
    ASSERT_TRUE(listener.schedule());
    session_.user().setPermission(Permission::switchedOff);
    post();
    EXPECT_THAT(received_,
                ElementsAre(ReceivedEvent{"listener", EventType::mouseMoved, Sent}, TimeoutNotice));
    tap_.unschedule();
    received_.clear();
    const Duration before = session_.clock().now();
    post();
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"listener", EventType::mouseMoved, Sent}));
    EXPECT_EQ(session_.clock().now(), before);
}

TEST_F(TapTimeoutTest, DelaysWhatFallsDueWhileAnEventIsHeldUp) {
    std::vector<Duration> times;
    session_.clock().schedule(100ms, [&] { times.push_back(session_.clock().now()); });
    session_.faults().stallMainThread(400ms);
    post();
    EXPECT_THAT(times, IsEmpty());
    session_.advance(0ms);
    EXPECT_THAT(times, ElementsAre(400ms));
}

TEST_F(TapTimeoutTest, RunsNothingOnABusyMainThread) {
    std::vector<Duration> times;
    const auto note = [&] { times.push_back(session_.clock().now()); };
    for (const Duration due : {1s, 2s, 4s}) {
        session_.clock().schedule(due, note);
    }
    tap_.onDisabled([&](EventType) { times.push_back(-session_.clock().now()); });
    session_.faults().stallMainThread(3s);
    session_.faults().disableTaps(EventType::tapDisabledByTimeout);
    session_.advance(2s);
    EXPECT_THAT(times, IsEmpty());
    session_.advance(8s);
    EXPECT_THAT(times, ElementsAre(-3s, 3s, 3s, 4s));
}

} // namespace
} // namespace kestrune::sim
