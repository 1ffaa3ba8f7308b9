#include "sim/hardware/VirtualClock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class VirtualClockTest : public testing::Test {
protected:
    // A task that writes down its name and when it ran.
    std::function<void()> note(std::string name) {
        return [this, name = std::move(name)] {
            ran_.push_back(name);
            times_.push_back(clock_.now());
        };
    }

    VirtualClock clock_;
    std::vector<std::string> ran_;
    std::vector<Duration> times_;
};

TEST_F(VirtualClockTest, StartsAtZeroAndPassesOnlyWhenTold) {
    EXPECT_EQ(clock_.now(), 0s);
    clock_.advance(3s);
    clock_.advance(500ms);
    EXPECT_EQ(clock_.now(), 3500ms);
}

TEST_F(VirtualClockTest, RunsTasksInOrderOfTheirDueTimes) {
    clock_.schedule(3s, note("third"));
    clock_.schedule(1s, note("first"));
    clock_.schedule(2s, note("second"));
    clock_.advance(10s);
    EXPECT_THAT(ran_, ElementsAre("first", "second", "third"));
    EXPECT_THAT(times_, ElementsAre(1s, 2s, 3s));
    EXPECT_EQ(clock_.now(), 10s);
}

TEST_F(VirtualClockTest, RunsTasksOfOneDueTimeInTheOrderOfScheduling) {
    clock_.schedule(1s, note("first"));
    clock_.schedule(1s, note("second"));
    clock_.schedule(1s, note("third"));
    clock_.advance(1s);
    EXPECT_THAT(ran_, ElementsAre("first", "second", "third"));
}

TEST_F(VirtualClockTest, RunsATaskAtItsDueTimeAndNotBefore) {
    clock_.schedule(1s, note("task"));
    clock_.advance(999ms);
    EXPECT_THAT(ran_, IsEmpty());
    clock_.advance(1ms);
    EXPECT_THAT(ran_, ElementsAre("task"));
}

TEST_F(VirtualClockTest, RunsATaskOnce) {
    clock_.schedule(1s, note("task"));
    clock_.advance(5s);
    clock_.advance(5s);
    EXPECT_THAT(ran_, ElementsAre("task"));
}

TEST_F(VirtualClockTest, RunsATaskWithoutDelayAtTheNextAdvance) {
    clock_.schedule(0s, note("task"));
    EXPECT_THAT(ran_, IsEmpty());
    clock_.advance(0s);
    EXPECT_THAT(ran_, ElementsAre("task"));
}

TEST_F(VirtualClockTest, CountsADelayFromTheTimeOfScheduling) {
    clock_.advance(10s);
    clock_.schedule(2s, note("task"));
    clock_.advance(5s);
    EXPECT_THAT(times_, ElementsAre(12s));
}

TEST_F(VirtualClockTest, RunsWhatATaskSchedulesWithinTheSameAdvance) {
    clock_.schedule(1s, [this] {
        note("outer")();
        clock_.schedule(1s, note("inner"));
    });
    clock_.advance(2s);
    EXPECT_THAT(ran_, ElementsAre("outer", "inner"));
    EXPECT_THAT(times_, ElementsAre(1s, 2s));
}

TEST_F(VirtualClockTest, LeavesWhatATaskSchedulesBeyondTheAdvanceForLater) {
    clock_.schedule(1s, [this] { clock_.schedule(5s, note("inner")); });
    clock_.advance(2s);
    EXPECT_THAT(ran_, IsEmpty());
    clock_.advance(4s);
    EXPECT_THAT(times_, ElementsAre(6s));
}

TEST_F(VirtualClockTest, RunsLateWhatFellDueWhileNothingCouldRun) {
    clock_.schedule(1s, note("first"));
    clock_.schedule(2s, note("second"));
    clock_.elapse(5s);
    EXPECT_EQ(clock_.now(), 5s);
    EXPECT_THAT(ran_, IsEmpty());
    clock_.advance(0s);
    EXPECT_THAT(ran_, ElementsAre("first", "second"));
    EXPECT_THAT(times_, ElementsAre(5s, 5s));
}

TEST_F(VirtualClockTest, NeverGoesBackWhenATaskLetsTimeElapse) {
    clock_.schedule(1s, [this] { clock_.elapse(10s); });
    clock_.schedule(2s, note("late"));
    clock_.advance(3s);
    EXPECT_THAT(times_, ElementsAre(11s));
    EXPECT_EQ(clock_.now(), 11s);
}

} // namespace
} // namespace kestrune::sim
