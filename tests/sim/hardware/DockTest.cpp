#include "sim/hardware/Dock.h"

#include "tests/sim/hardware/PointerStep.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;

// The primary display, one to the right of it that reaches further down, and one below the primary.
const Display Primary = makeDisplay(1, "Primary", {0, 0, 1000, 800});
const Display OnTheRight = makeDisplay(2, "Right", {1000, 0, 1000, 900});
const Display Below = makeDisplay(3, "Below", {0, 800, 600, 500});

constexpr Point RightBottom{1500, 900 - PointerStep};

class DockTest : public testing::Test {
protected:
    // The pointer is pushed down at a place for a time, in four events.
    void push(Point location, Duration duration) {
        for (int quarter = 0; quarter <= 4; ++quarter) {
            dock_.pointerArrived(location, 3, now_ + duration * quarter / 4);
        }
        now_ += duration;
    }

    Displays displays_{{Primary, OnTheRight, Below}};
    Dock dock_{displays_, 200ms};
    Duration now_{0};
};

TEST_F(DockTest, StartsOnThePrimaryDisplay) {
    EXPECT_EQ(dock_.display(), 1U);
    EXPECT_EQ(dock_.moves(), 0U);
}

TEST_F(DockTest, MovesWhereThePointerIsPushedForTheDwellTime) {
    push(RightBottom, 200ms);
    EXPECT_EQ(dock_.display(), 2U);
    EXPECT_EQ(dock_.moves(), 1U);
}

TEST_F(DockTest, StaysWhenThePushEndsBeforeTheDwellTime) {
    push(RightBottom, 199ms);
    EXPECT_EQ(dock_.display(), 1U);
    EXPECT_EQ(dock_.moves(), 0U);
}

TEST_F(DockTest, CountsAPushInTheLastPointAboveTheEdge) {
    push({1500, 899}, 200ms);
    EXPECT_EQ(dock_.display(), 2U);
}

TEST_F(DockTest, IgnoresAPushThatEndsFurtherUp) {
    push({1500, 899 - PointerStep}, 1s);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, IgnoresAPointerThatRestsThere) {
    dock_.pointerArrived(RightBottom, 3, 0ms);
    dock_.pointerArrived(RightBottom, 0, 500ms);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, IgnoresAPointerThatIsPulledUp) {
    dock_.pointerArrived(RightBottom, 3, 0ms);
    dock_.pointerArrived(RightBottom, -3, 500ms);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, GoesOnCountingAfterAPauseOnTheEdge) {
    dock_.pointerArrived(RightBottom, 3, 0ms);
    dock_.pointerArrived({1400, 900 - PointerStep}, 0, 100ms);
    dock_.pointerArrived({1300, 900 - PointerStep}, 1, 250ms);
    EXPECT_EQ(dock_.display(), 2U);
}

TEST_F(DockTest, CountsAfreshWhenThePointerLeftTheEdge) {
    push(RightBottom, 199ms);
    dock_.pointerArrived({1500, 500}, -400, now_);
    push(RightBottom, 199ms);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, IsNotAttractedByAnEdgeWithADisplayBelow) {
    dock_.place(2);
    push({300, 800 - PointerStep}, 1s);
    EXPECT_EQ(dock_.display(), 2U);
}

TEST_F(DockTest, IsAttractedByThePartOfAnEdgeWithoutADisplayBelow) {
    dock_.place(2);
    push({600, 800 - PointerStep}, 200ms);
    EXPECT_EQ(dock_.display(), 1U);
    EXPECT_EQ(dock_.moves(), 1U);
}

TEST_F(DockTest, IsAttractedByADisplayBelowAnother) {
    push({300, 1300 - PointerStep}, 200ms);
    EXPECT_EQ(dock_.display(), 3U);
}

TEST_F(DockTest, DoesNotMoveToWhereItIs) {
    dock_.place(2);
    push(RightBottom, 1s);
    EXPECT_EQ(dock_.moves(), 0U);
}

TEST_F(DockTest, IgnoresAPointerOnNoDisplay) {
    push({1500, 900}, 1s);
    push({5000, 5000}, 1s);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, CountsAPushOnEachDisplayOnItsOwn) {
    dock_.place(1);
    push(RightBottom, 150ms);
    push({300, 1300 - PointerStep}, 150ms);
    EXPECT_EQ(dock_.display(), 1U);
    push({300, 1300 - PointerStep}, 50ms);
    EXPECT_EQ(dock_.display(), 3U);
}

TEST_F(DockTest, ForgetsAPushWhenThePointerCrossesTheEdgeOfAnotherDisplay) {
    push(RightBottom, 150ms);
    dock_.pointerArrived({300, 1300 - PointerStep}, 0, now_);
    push(RightBottom, 150ms);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, CountsEveryMove) {
    push(RightBottom, 200ms);
    push({800, 800 - PointerStep}, 200ms);
    push(RightBottom, 200ms);
    EXPECT_EQ(dock_.display(), 2U);
    EXPECT_EQ(dock_.moves(), 3U);
}

TEST_F(DockTest, IsPlacedWithoutAMove) {
    dock_.place(3);
    EXPECT_EQ(dock_.display(), 3U);
    EXPECT_EQ(dock_.moves(), 0U);
}

TEST_F(DockTest, CountsAfreshAfterItWasPlaced) {
    push(RightBottom, 150ms);
    dock_.place(3);
    push(RightBottom, 150ms);
    EXPECT_EQ(dock_.display(), 3U);
}

TEST_F(DockTest, LeavesADisconnectedDisplayForThePrimaryOneWithoutAMove) {
    dock_.place(2);
    displays_.set({Primary, Below});
    dock_.displaysChanged();
    EXPECT_EQ(dock_.display(), 1U);
    EXPECT_EQ(dock_.moves(), 0U);
}

TEST_F(DockTest, StaysWhenAnotherDisplayGoes) {
    dock_.place(2);
    displays_.set({Primary, OnTheRight});
    dock_.displaysChanged();
    EXPECT_EQ(dock_.display(), 2U);
}

TEST_F(DockTest, StaysOnADisplayThatIsNoLongerThePrimary) {
    displays_.set(
        {makeDisplay(2, "Right", {0, 0, 1000, 900}), makeDisplay(1, "Primary", {-1000, 0, 1000, 800})});
    dock_.displaysChanged();
    EXPECT_EQ(dock_.display(), 1U);
}

TEST_F(DockTest, IsNowhereWithoutDisplaysAndComesBackOnThePrimary) {
    displays_.set({});
    dock_.displaysChanged();
    EXPECT_EQ(dock_.display(), std::nullopt);
    push(RightBottom, 1s);
    EXPECT_EQ(dock_.display(), std::nullopt);
    displays_.set({OnTheRight});
    dock_.displaysChanged();
    EXPECT_EQ(dock_.display(), 2U);
    EXPECT_EQ(dock_.moves(), 0U);
}

TEST_F(DockTest, CountsAfreshWhenTheDisplaysChanged) {
    push(RightBottom, 150ms);
    dock_.displaysChanged();
    push(RightBottom, 150ms);
    EXPECT_EQ(dock_.display(), 1U);
}

TEST(Dock, MovesAtTheFirstPushWithoutDwellTime) {
    const Displays displays({Primary, OnTheRight});
    Dock dock(displays, 0ms);
    dock.pointerArrived(RightBottom, 0, 0ms);
    EXPECT_EQ(dock.display(), 1U);
    dock.pointerArrived(RightBottom, 1, 0ms);
    EXPECT_EQ(dock.display(), 2U);
}

} // namespace
} // namespace kestrune::sim
