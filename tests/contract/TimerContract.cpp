// Timers. The spans are long enough for a real clock.
#include "platform/MainActor.h"
#include "platform/Timer.h"
#include "tests/contract/MenuFixture.h"

#include <memory>

namespace kestrune::contract {
namespace {

class TimerContract : public MenuFixture {
protected:
    Timer schedule(double interval, bool repeats) {
        return Timer::scheduledTimer(interval, repeats, [this](Timer& /*timer*/) { ++firings_; });
    }

    int firings_ = 0;
};

TEST_F(TimerContract, FiresAfterItsIntervalAndNotBefore) {
    const Timer timer = schedule(0.2, true);
    EXPECT_EQ(firings_, 0);
    world_.letTimePass(0.1);
    EXPECT_EQ(firings_, 0);
    world_.letTimePass(0.2);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, FiresAgainAfterEachInterval) {
    const Timer timer = schedule(0.1, true);
    world_.letTimePass(0.35);
    EXPECT_EQ(firings_, 3);
    world_.letTimePass(0.1);
    EXPECT_EQ(firings_, 4);
}

TEST_F(TimerContract, FiresOnceUnlessItRepeats) {
    const Timer timer = schedule(0.05, false);
    world_.letTimePass(0.3);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, FiresAlthoughNobodyKeepsIt) {
    schedule(0.05, false);
    world_.letTimePass(0.1);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, DoesNotFireOnceItIsInvalidated) {
    Timer timer = schedule(0.1, true);
    world_.letTimePass(0.15);
    EXPECT_EQ(firings_, 1);
    timer.invalidate();
    timer.invalidate();
    world_.letTimePass(0.3);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, DoesNotFireWhenItIsInvalidatedBeforehand) {
    Timer timer = schedule(0.1, true);
    timer.invalidate();
    world_.letTimePass(0.3);
    EXPECT_EQ(firings_, 0);
}

TEST_F(TimerContract, MayBeInvalidatedInItsBlock) {
    Timer::scheduledTimer(0.05, true, [this](Timer& timer) {
        ++firings_;
        timer.invalidate();
    });
    world_.letTimePass(0.3);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, ReleasesItsBlockWhenItIsInvalidated) {
    const auto token = std::make_shared<int>();
    Timer timer = Timer::scheduledTimer(10, true, [token](Timer& /*timer*/) {});
    EXPECT_EQ(token.use_count(), 2);
    timer.invalidate();
    EXPECT_EQ(token.use_count(), 1);
}

TEST_F(TimerContract, ReleasesItsBlockAfterItWasInvalidatedInIt) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> watched = token;
    Timer::scheduledTimer(0.05, true, [this, token = std::move(token)](Timer& timer) {
        timer.invalidate();
        firings_ = *token == 0 ? 1 : 2;
    });
    EXPECT_FALSE(watched.expired());
    world_.letTimePass(0.1);
    EXPECT_EQ(firings_, 1);
    EXPECT_TRUE(watched.expired());
}

TEST_F(TimerContract, ReleasesItsBlockAfterItsOnlyFiring) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> watched = token;
    const Timer timer = Timer::scheduledTimer(0.05, false, [token = std::move(token)](Timer& /*timer*/) {});
    world_.letTimePass(0.1);
    EXPECT_TRUE(watched.expired());
}

TEST_F(TimerContract, KeepsWhatItsBlockChangedOfItsOwn) {
    int latest = 0;
    const Timer timer = Timer::scheduledTimer(
        0.1, true, [&latest, count = 0](Timer& /*timer*/) mutable { latest = ++count; });
    world_.letTimePass(0.35);
    EXPECT_EQ(latest, 3);
}

// Such an interval stands for a tenth of a millisecond.
TEST_F(TimerContract, FiresSoonWithoutAnInterval) {
    const Timer timer = schedule(0, false);
    const Timer other = schedule(-1, false);
    EXPECT_EQ(firings_, 0);
    world_.letTimePass(0.1);
    EXPECT_EQ(firings_, 2);
}

TEST_F(TimerContract, MayScheduleAnotherInItsBlock) {
    Timer::scheduledTimer(0.05, false, [this](Timer& /*timer*/) { schedule(0.05, false); });
    world_.letTimePass(0.3);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, RunsItsBlockOnTheMainThread) {
    bool isCurrent = false;
    Timer::scheduledTimer(0.05, false,
                          [&isCurrent](Timer& /*timer*/) { isCurrent = MainActor::isCurrent(); });
    world_.letTimePass(0.1);
    EXPECT_TRUE(isCurrent);
}

TEST_F(TimerContract, WaitsWhileAMenuIsTrackedAndMakesUpForItOnce) {
    statusItem_.setMenu(Menu());
    const Timer timer = schedule(0.1, true);
    EXPECT_TRUE(world_.openStatusMenu([this] {
        world_.letTimePass(0.35);
        EXPECT_EQ(firings_, 0);
    }));
    world_.runMainQueue();
    EXPECT_EQ(firings_, 1);
    world_.letTimePass(0.1);
    EXPECT_EQ(firings_, 2);
}

TEST_F(TimerContract, FiresNothingAfterAMenuThatItWasNotDueIn) {
    statusItem_.setMenu(Menu());
    const Timer timer = schedule(0.3, true);
    world_.openStatusMenu([this] { world_.letTimePass(0.1); });
    world_.runMainQueue();
    EXPECT_EQ(firings_, 0);
    world_.letTimePass(0.25);
    EXPECT_EQ(firings_, 1);
}

TEST_F(TimerContract, DoesNotFireAfterAMenuInWhichItWasInvalidated) {
    statusItem_.setMenu(Menu());
    Timer timer = schedule(0.1, true);
    world_.openStatusMenu([&] {
        world_.letTimePass(0.15);
        timer.invalidate();
    });
    world_.letTimePass(0.3);
    EXPECT_EQ(firings_, 0);
}

TEST_F(TimerContract, WaitsThroughTheActionOfAnItemThatEndsTheMenu) {
    Menu menu = manualMenu();
    menu.addItem(itemFor(target_));
    statusItem_.setMenu(menu);
    Timer timer = schedule(0.1, true);
    target_->onAction([&] {
        EXPECT_EQ(firings_, 0);
        timer.invalidate();
    });
    world_.openStatusMenu([&] {
        world_.letTimePass(0.15);
        world_.chooseRow(0);
    });
    world_.letTimePass(0.3);
    EXPECT_EQ(target_->received().size(), 1U);
    EXPECT_EQ(firings_, 0);
}

} // namespace
} // namespace kestrune::contract
