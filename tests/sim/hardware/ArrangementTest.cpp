#include "sim/hardware/Arrangement.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

std::vector<Display> displays(const std::vector<Rect>& bounds) {
    std::vector<Display> result;
    for (const Rect& rect : bounds) {
        const auto number = static_cast<DisplayID>(result.size() + 1);
        result.push_back(makeDisplay(number, "Display " + std::to_string(number), rect));
    }
    return result;
}

std::vector<Rect> boundsOf(const std::vector<Display>& displays) {
    std::vector<Rect> result;
    for (const Display& display : displays) {
        result.push_back(display.bounds);
    }
    return result;
}

using Bounds = std::vector<Rect>;

TEST(Arrangement, LeavesTheOthersInPlaceWhenADisplayAtTheEndGoes) {
    const auto rest = withoutDisplay(displays({{0, 0, 100, 80}, {100, 0, 60, 40}, {160, 0, 50, 50}}), 2);
    EXPECT_EQ(boundsOf(rest), (Bounds{{0, 0, 100, 80}, {100, 0, 60, 40}}));
}

TEST(Arrangement, StartsTheCoordinatesAtTheNewPrimaryDisplay) {
    const auto rest = withoutDisplay(displays({{0, 0, 100, 80}, {100, -20, 60, 40}, {160, 0, 50, 50}}), 0);
    EXPECT_EQ(boundsOf(rest), (Bounds{{0, 0, 60, 40}, {60, 20, 50, 50}}));
    EXPECT_EQ(rest.front().displayID, 2U);
}

TEST(Arrangement, ClosesAGapBetweenDisplaysSideBySide) {
    const auto rest = withoutDisplay(displays({{0, 0, 100, 80}, {100, 0, 60, 80}, {160, 5, 50, 50}}), 1);
    EXPECT_EQ(boundsOf(rest), (Bounds{{0, 0, 100, 80}, {100, 5, 50, 50}}));
}

TEST(Arrangement, ClosesAGapBetweenDisplaysAboveEachOther) {
    const auto rest = withoutDisplay(displays({{0, 0, 100, 80}, {0, 80, 100, 60}, {10, 140, 100, 50}}), 1);
    EXPECT_EQ(boundsOf(rest), (Bounds{{0, 0, 100, 80}, {10, 80, 100, 50}}));
}

TEST(Arrangement, KeepsThePrimaryAtTheOriginWhenItMovesIntoTheGap) {
    const auto rest = withoutDisplay(displays({{0, 0, 100, 80}, {-60, 0, 60, 80}, {-110, 0, 50, 80}}), 1);
    EXPECT_EQ(boundsOf(rest), (Bounds{{0, 0, 100, 80}, {-50, 0, 50, 80}}));
}

TEST(Arrangement, LeavesAGapThatCannotBeClosedWithoutOverlap) {
    // The last display stands diagonally: moved left it would meet the first one only at a corner.
    const Bounds diagonal{{0, 0, 100, 80}, {100, 0, 100, 160}, {200, 80, 100, 80}};
    EXPECT_EQ(boundsOf(withoutDisplay(displays(diagonal), 1)), (Bounds{{0, 0, 100, 80}, {200, 80, 100, 80}}));
}

TEST(Arrangement, IsEmptyWithoutItsLastDisplay) {
    EXPECT_TRUE(withoutDisplay(displays({{0, 0, 100, 80}}), 0).empty());
}

TEST(Arrangement, PutsADisplayLevelWithItsRightmostNeighbour) {
    const auto added = makeDisplay(3, "Display 3", {0, 0, 50, 61});
    const auto together = withDisplayAtRight(displays({{0, 0, 100, 80}, {100, -20, 60, 40}}), added);
    EXPECT_EQ(together.back().bounds, (Rect{160, -31, 50, 61}));
    EXPECT_EQ(together.size(), 3U);
}

TEST(Arrangement, PutsTheOnlyDisplayAtTheOrigin) {
    const auto added = makeDisplay(2, "Display 2", {300, 40, 50, 60});
    EXPECT_EQ(boundsOf(withDisplayAtRight({}, added)), (Bounds{{0, 0, 50, 60}}));
}

} // namespace
} // namespace kestrune::sim
