#include "desk/live/world/SwitchMotion.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kestrune::desk {
namespace {

using namespace std::chrono_literals;

TEST(SwitchGrip, MayStillMeanAClickUntilTheHandHasMovedALittle) {
    SwitchGrip grip(false, {100, 50}, 16);
    EXPECT_FALSE(grip.isDragged());
    grip.follow({102, 80});
    EXPECT_FALSE(grip.isDragged());
    EXPECT_EQ(grip.position(), 0);
    grip.follow({104, 50});
    EXPECT_TRUE(grip.isDragged());
    EXPECT_EQ(grip.position(), 0.25);
}

TEST(SwitchGrip, KeepsTheKnobInItsTrack) {
    SwitchGrip grip(true, {100, 50}, 16);
    grip.follow({400, 50});
    EXPECT_EQ(grip.position(), 1);
    grip.follow({-400, 50});
    EXPECT_EQ(grip.position(), 0);
}

TEST(SwitchGrip, IsLetGoOnTheNearerSide) {
    SwitchGrip grip(true, {100, 50}, 16);
    EXPECT_TRUE(grip.isOnSide());
    grip.follow({92, 50});
    EXPECT_TRUE(grip.isOnSide());
    grip.follow({91, 50});
    EXPECT_FALSE(grip.isOnSide());
    grip.follow({100, 50});
    EXPECT_TRUE(grip.isDragged()) << "a drag that comes back is no click";
    EXPECT_TRUE(grip.isOnSide());
}

TEST(SwitchSlide, GoesFromWhereItIsToItsSideQuicklyAtFirst) {
    const SwitchSlide slide(0.25, true, 10s);
    EXPECT_EQ(slide.position(10s), 0.25);
    const double middle = slide.position(10s + SwitchSlide::Length / 2).value();
    EXPECT_GT(middle, 0.8);
    EXPECT_LT(middle, 1);
    EXPECT_FALSE(slide.position(10s + SwitchSlide::Length));
    const SwitchSlide back(1, false, 0s);
    EXPECT_LT(back.position(90ms).value(), 0.2);
}

} // namespace
} // namespace kestrune::desk
