#include "replay/recording/StrokeModel.h"

#include "replay/recording/SplitMix64.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kestrune::replay {
namespace {

using namespace std::chrono_literals;

TEST(MinimumJerk, StartsAndEndsAtRestAndIsSymmetrical) {
    EXPECT_EQ(minimumJerkProgress(0), 0);
    EXPECT_EQ(minimumJerkProgress(0.5), 0.5);
    EXPECT_EQ(minimumJerkProgress(1), 1);
    EXPECT_LT(minimumJerkProgress(0.01), 1e-5);
    EXPECT_GT(minimumJerkProgress(0.99), 1 - 1e-5);
    EXPECT_NEAR(minimumJerkProgress(0.3), 1 - minimumJerkProgress(0.7), 1e-15);
}

TEST(MinimumJerk, HasASpeedInTheShapeOfABell) {
    constexpr int steps = 100;
    const auto speed = [](int step) {
        return (minimumJerkProgress((step + 1.0) / steps) - minimumJerkProgress(1.0 * step / steps)) * steps;
    };
    for (int step = 0; step + 1 < steps / 2; ++step)
        EXPECT_LT(speed(step), speed(step + 1)) << step;
    for (int step = steps / 2; step + 1 < steps; ++step)
        EXPECT_GT(speed(step), speed(step + 1)) << step;
    EXPECT_NEAR(speed(steps / 2), 15.0 / 8, 0.001);
}

TEST(StrokeDuration, FollowsFittssLaw) {
    EXPECT_EQ(strokeDuration(MousePointing, 0, 50), 230ms);
    EXPECT_EQ(strokeDuration(MousePointing, 50, 50), 396ms);
    EXPECT_EQ(strokeDuration(MousePointing, 350, 50), 728ms);
    EXPECT_EQ(strokeDuration(MouseDragging, 350, 50), 882ms);
}

TEST(StrokeDuration, AgreesWithTheLibrarysLogarithm) {
    for (double distance = 0; distance < 70'000; distance = distance * 1.25 + 1) {
        const double expected = 230 + 166 * std::log2(distance / 37 + 1);
        EXPECT_NEAR(static_cast<double>(strokeDuration(MousePointing, distance, 37).count()), expected,
                    0.5001);
    }
}

TEST(StrokeDuration, GrowsWithTheDistanceAndShrinksWithTheTarget) {
    for (int distance = 10; distance < 2000; distance += 10) {
        EXPECT_LT(strokeDuration(MousePointing, distance, 40),
                  strokeDuration(MousePointing, distance * 1.5, 40));
        EXPECT_GT(strokeDuration(MousePointing, distance, 40), strokeDuration(MousePointing, distance, 80));
    }
}

TEST(SplitMix64, GivesThePublishedSequence) {
    SplitMix64 random(1234567);
    EXPECT_EQ(random.next(), 6457827717110365317U);
    EXPECT_EQ(random.next(), 3203168211198807973U);
    EXPECT_EQ(random.next(), 9817491932198370423U);
}

TEST(SplitMix64, ReachesEveryNumberOfARangeAndNoOther) {
    SplitMix64 random(5);
    std::array<int, 7> counts{};
    for (int count = 0; count < 7000; ++count) {
        const int value = random.between(-3, 3);
        ASSERT_GE(value, -3);
        ASSERT_LE(value, 3);
        ++counts.at(static_cast<std::size_t>(value + 3));
    }
    for (const int count : counts)
        EXPECT_NEAR(count, 1000, 150);
}

TEST(SplitMix64, GivesFractionsBelowOne) {
    SplitMix64 random(6);
    double sum = 0;
    for (int count = 0; count < 10'000; ++count) {
        const double value = random.unit();
        ASSERT_GE(value, 0);
        ASSERT_LT(value, 1);
        sum += value;
    }
    EXPECT_NEAR(sum / 10'000, 0.5, 0.02);
}

} // namespace
} // namespace kestrune::replay
