// The session's timers; their behaviour towards the application is in the contract tests.
#include "platform/Timer.h"
#include "sim/session/Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class TimersTest : public testing::Test {
protected:
    // Writes down when it fires.
    Timer schedule(double interval, bool repeats) {
        return Timer::scheduledTimer(
            interval, repeats, [this](Timer& /*timer*/) { firings_.push_back(session_.clock().now()); });
    }

    Session session_;
    Timers& timers_ = session_.timers();
    std::vector<Duration> firings_;
};

TEST_F(TimersTest, FireAtTheEndOfEachInterval) {
    schedule(1, true);
    session_.advance(999999999ns);
    EXPECT_THAT(firings_, IsEmpty());
    session_.advance(1ns);
    session_.advance(2s);
    EXPECT_THAT(firings_, ElementsAre(1s, 2s, 3s));
}

TEST_F(TimersTest, AreCountedWhileTheyMayFire) {
    EXPECT_EQ(timers_.count(), 0U);
    Timer repeating = schedule(1, true);
    schedule(1, false);
    EXPECT_EQ(timers_.count(), 2U);
    session_.advance(1s);
    EXPECT_EQ(timers_.count(), 1U);
    repeating.invalidate();
    EXPECT_EQ(timers_.count(), 0U);
    repeating.invalidate();
    EXPECT_EQ(timers_.count(), 0U);
}

TEST_F(TimersTest, FireInTheOrderOfTheirScheduling) {
    std::vector<int> order;
    for (const int number : {1, 2, 3}) {
        Timer::scheduledTimer(1, false, [&order, number](Timer& /*timer*/) { order.push_back(number); });
    }
    session_.advance(1s);
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(TimersTest, TakeATenthOfAMillisecondForNoInterval) {
    schedule(0, false);
    schedule(-5, false);
    session_.advance(99us);
    EXPECT_THAT(firings_, IsEmpty());
    session_.advance(1us);
    EXPECT_THAT(firings_, ElementsAre(100us, 100us));
}

TEST_F(TimersTest, FireLateAndOnceAfterTheMainThreadWasBusy) {
    schedule(1, true);
    session_.faults().stallMainThread(3500ms);
    session_.advance(4s);
    EXPECT_THAT(firings_, ElementsAre(3500ms, 4s));
}

TEST_F(TimersTest, FireOnceOnTheWayBackToTheDefaultModeAndThenOnTheirOldGrid) {
    schedule(1, true);
    timers_.leaveDefaultMode();
    session_.advance(2500ms);
    EXPECT_THAT(firings_, IsEmpty());
    timers_.enterDefaultMode();
    EXPECT_THAT(firings_, ElementsAre(2500ms));
    session_.advance(1s);
    EXPECT_THAT(firings_, ElementsAre(2500ms, 3s));
}

TEST_F(TimersTest, MissNothingThatIsDueWhileTheDefaultModeIsBack) {
    schedule(1, true);
    timers_.leaveDefaultMode();
    session_.advance(500ms);
    timers_.enterDefaultMode();
    EXPECT_THAT(firings_, IsEmpty());
    session_.advance(500ms);
    EXPECT_THAT(firings_, ElementsAre(1s));
}

TEST_F(TimersTest, AreKeptBackAgainWhenOneOfThemLeavesTheDefaultMode) {
    Timer::scheduledTimer(1, false, [this](Timer& /*timer*/) { timers_.leaveDefaultMode(); });
    schedule(1, false);
    timers_.leaveDefaultMode();
    session_.advance(1s);
    timers_.enterDefaultMode();
    EXPECT_THAT(firings_, IsEmpty());
    timers_.enterDefaultMode();
    EXPECT_THAT(firings_, ElementsAre(1s));
}

TEST_F(TimersTest, WaitUntilAMenuAndTheAlertBehindItAreClosed) {
    schedule(1, false);
    timers_.leaveDefaultMode();
    timers_.leaveDefaultMode();
    session_.advance(1s);
    timers_.enterDefaultMode();
    EXPECT_THAT(firings_, IsEmpty());
    timers_.enterDefaultMode();
    EXPECT_THAT(firings_, ElementsAre(1s));
}

TEST_F(TimersTest, FireNoMoreOnceTheyAreCleared) {
    Timer kept = schedule(1, true);
    schedule(1, true);
    timers_.leaveDefaultMode();
    session_.advance(1s);
    timers_.clear();
    EXPECT_EQ(timers_.count(), 0U);
    timers_.enterDefaultMode();
    session_.advance(5s);
    EXPECT_THAT(firings_, IsEmpty());
    kept.invalidate();
    schedule(1, false);
    session_.advance(1s);
    EXPECT_THAT(firings_, ElementsAre(7s));
}

TEST_F(TimersTest, MayBeClearedByOneThatFires) {
    Timer::scheduledTimer(1, true, [this](Timer& /*timer*/) {
        firings_.push_back(session_.clock().now());
        timers_.clear();
    });
    schedule(1, true);
    session_.advance(5s);
    EXPECT_THAT(firings_, ElementsAre(1s));
    EXPECT_EQ(timers_.count(), 0U);
}

} // namespace
} // namespace kestrune::sim
