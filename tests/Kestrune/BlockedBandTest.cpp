#include "Kestrune/BlockedBand.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestrune {
namespace {

TEST(BlockedBand, BeginsOnePointAndTheMarginAboveTheBottomEdge) {
    const BlockedBand band({1920, 280, 1280, 800}, 4);
    EXPECT_EQ(band.threshold(), 1075);
    EXPECT_EQ(band.heldY(), 1075);
}

TEST(BlockedBand, DoesNotBlockItsOwnThreshold) {
    const BlockedBand band({0, 0, 100, 100}, 4);
    EXPECT_FALSE(band.blocks(95));
    EXPECT_TRUE(band.blocks(std::nextafter(95.0, 96.0)));
}

TEST(BlockedBand, HoldsThePointerOnePointBelowTheTopOfADisplayThatIsTooShort) {
    const BlockedBand band({0, 100, 1000, 4}, 4);
    EXPECT_EQ(band.threshold(), 99);
    EXPECT_TRUE(band.blocks(102));
    EXPECT_EQ(band.heldY(), 101);
}

TEST(BlockedBand, HoldsAtTheThresholdAsSoonAsThatIsBelowTheLimit) {
    EXPECT_EQ(BlockedBand({0, 0, 10, 6}, 4).heldY(), 1);
    EXPECT_EQ(BlockedBand({0, 0, 10, 6.5}, 4).heldY(), 1.5);
}

TEST(BlockedBand, CountsFromTheEdgesOfTheStandardizedFrame) {
    const BlockedBand band({100, 200, -100, -200}, 10);
    EXPECT_EQ(band.threshold(), 189);
}

TEST(BlockedBand, OfInfiniteDepthBlocksEverythingAndHoldsBelowTheTop) {
    const BlockedBand band({0, 50, 100, 100}, std::numeric_limits<double>::infinity());
    EXPECT_TRUE(band.blocks(50));
    EXPECT_EQ(band.heldY(), 51);
}

TEST(BlockedBand, LetsAPositionThatIsNoNumberPass) {
    EXPECT_FALSE(BlockedBand({0, 0, 100, 100}, 4).blocks(std::nan("")));
}

} // namespace
} // namespace kestrune
