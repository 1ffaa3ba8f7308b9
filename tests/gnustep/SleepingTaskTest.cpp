// When a sleeping task is woken, which on the seam looks the same as waking it in vain.
#include "platform/MainActor.h"
#include "tests/contract/WindowFixture.h"
#include "tests/gnustep/standins/MainQueue.h"

namespace kestrune::gnustep {
namespace {

using namespace std::chrono_literals;

class SleepingTaskOnGNUstep : public contract::WindowFixture {
protected:
    SleepingTask startTask() {
        return MainActor::startTask(50ms, [this] { ++timesDone_; });
    }

    // How often the main queue is used.
    static unsigned dispatchedBy(const std::function<void()>& work) {
        const unsigned before = dispatchedTasks();
        work();
        return dispatchedTasks() - before;
    }

    int timesDone_ = 0;
};

TEST_F(SleepingTaskOnGNUstep, IsWokenOnceWhenItIsCancelledInItsSleep) {
    SleepingTask task = startTask();
    world_.runMainQueue();
    EXPECT_EQ(dispatchedBy([&task] { task.cancel(); }), 1U);
    world_.runMainQueue();
    EXPECT_EQ(timesDone_, 1);
    EXPECT_EQ(dispatchedBy([&task] { task.cancel(); }), 0U);
}

TEST_F(SleepingTaskOnGNUstep, IsNotWokenBeforeItSleeps) {
    SleepingTask task = startTask();
    EXPECT_EQ(dispatchedBy([&task] { task.cancel(); }), 0U);
    world_.runMainQueue();
    EXPECT_EQ(timesDone_, 1);
    EXPECT_EQ(dispatchedBy([&task] { task.cancel(); }), 0U);
}

TEST_F(SleepingTaskOnGNUstep, IsNotWokenAfterItsWork) {
    SleepingTask task = startTask();
    world_.letTimePass(0.1);
    EXPECT_EQ(timesDone_, 1);
    EXPECT_EQ(dispatchedBy([&task] { task.cancel(); }), 0U);
}

} // namespace
} // namespace kestrune::gnustep
