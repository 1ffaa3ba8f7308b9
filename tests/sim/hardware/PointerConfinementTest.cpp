#include "sim/hardware/PointerConfinement.h"

#include "tests/base/UnusualNumbers.h"
#include "tests/sim/hardware/PointerStep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>

namespace kestrune::sim {
namespace {

std::vector<Display> arrange(std::initializer_list<Rect> bounds) {
    std::vector<Display> displays;
    for (const Rect& each : bounds) {
        displays.push_back(makeDisplay(static_cast<DisplayID>(displays.size() + 1), "Display", each));
    }
    return displays;
}

struct Movement {
    const char* name;
    std::vector<Display> displays;
    Point from;
    Point wanted;
    Point reached;
};

void PrintTo(const Movement& movement, std::ostream* output) { *output << movement.name; }

std::string nameOfMovement(const testing::TestParamInfo<Movement>& movement) { return movement.param.name; }

class PointerConfinementTest : public testing::TestWithParam<Movement> {};

TEST_P(PointerConfinementTest, LeadsToTheRightPlace) {
    const Movement& movement = GetParam();
    const Point reached = confinePointer(movement.displays, movement.from, movement.wanted);
    EXPECT_EQ(reached, movement.reached) << "(" << reached.x << ", " << reached.y << ")";
}

const std::vector<Display> One = arrange({{0, 0, 1512, 982}});
const Movement OneDisplay[] = {
    {"Inside", One, {100, 100}, {200.5, 300.25}, {200.5, 300.25}},
    {"NearestGridPosition", One, {100, 100}, {200.001, 300.003}, {200, 300 + PointerStep}},
    {"MinimumEdges", One, {100, 100}, {0, 0}, {0, 0}},
    {"LeftEdge", One, {100, 100}, {-5, 100}, {0, 100}},
    {"TopEdge", One, {100, 100}, {100, -5}, {100, 0}},
    {"RightEdge", One, {100, 100}, {5000, 100}, {1512 - PointerStep, 100}},
    {"BottomEdge", One, {100, 100}, {100, 5000}, {100, 982 - PointerStep}},
    {"ExactlyTheMaximumEdges", One, {100, 100}, {1512, 982}, {1512 - PointerStep, 982 - PointerStep}},
    {"LastPositions",
     One,
     {100, 100},
     {1512 - PointerStep, 982 - PointerStep},
     {1512 - PointerStep, 982 - PointerStep}},
    {"RoundedOntoTheMaximumEdge", One, {100, 100}, {1512 - PointerStep / 4, 100}, {1512 - PointerStep, 100}},
    {"Corner", One, {100, 100}, {-3, 5000}, {0, 982 - PointerStep}},
    {"AlongTheBottomEdge", One, {100, 982 - PointerStep}, {150, 990}, {150, 982 - PointerStep}},
    {"AlongTheRightEdge", One, {1512 - PointerStep, 100}, {1600, 150}, {1512 - PointerStep, 150}},
    {"Infinite", One, {100, 100}, {Infinity, -Infinity}, {1512 - PointerStep, 0}},
    {"NotANumberX", One, {100, 100}, {NotANumber, 50}, {100, 100}},
    {"NotANumberY", One, {100, 100}, {50, NotANumber}, {100, 100}},
};
INSTANTIATE_TEST_SUITE_P(OneDisplay, PointerConfinementTest, testing::ValuesIn(OneDisplay), nameOfMovement);

// 900.3 points are 230476.8 steps: the last one inside is 230476.
const std::vector<Display> Fractional = arrange({{0, 0, 1440.5, 900.3}, {1440.5, 10.3, 1000, 800}});
const Movement FractionalSizes[] = {
    {"BottomEdge", Fractional, {100, 100}, {100, 5000}, {100, 230476 * PointerStep}},
    {"MaximumEdgeOnTheGrid", Fractional, {100, 2}, {5000, 2}, {1440.5 - PointerStep, 2}},
    {"OntoTheNeighbour", Fractional, {1440, 100}, {1440.5, 100}, {1440.5, 100}},
    {"MinimumEdgeOffTheGrid",
     Fractional,
     {1500, 100},
     {1500, 0},
     {1500, std::ceil(10.3 * 256) * PointerStep}},
};
INSTANTIATE_TEST_SUITE_P(FractionalSizes, PointerConfinementTest, testing::ValuesIn(FractionalSizes),
                         nameOfMovement);

// The right display starts 100 points lower.
const std::vector<Display> SideBySide = arrange({{0, 0, 1000, 800}, {1000, 100, 1000, 800}});
const Movement DisplaysBeside[] = {
    {"OverTheSharedEdge", SideBySide, {990, 150}, {1010, 150}, {1010, 150}},
    {"BackOverTheSharedEdge", SideBySide, {1010, 150}, {990, 150}, {990, 150}},
    {"BesideTheSharedEdge", SideBySide, {990, 50}, {1010, 50}, {1000 - PointerStep, 50}},
    {"SlidesDownBesideTheSharedEdge", SideBySide, {990, 50}, {1010, 90}, {1000 - PointerStep, 90}},
    {"SidewaysBeforeUp", SideBySide, {990, 150}, {1010, 50}, {1010, 100}},
    {"LeapsDiagonally", SideBySide, {990, 50}, {1500, 120}, {1500, 120}},
    {"BackBelowTheSharedEdge", SideBySide, {1010, 850}, {990, 850}, {1000, 850}},
    {"BottomEdgeOfTheNeighbour", SideBySide, {990, 790}, {1010, 950}, {1010, 900 - PointerStep}},
};
INSTANTIATE_TEST_SUITE_P(DisplaysBeside, PointerConfinementTest, testing::ValuesIn(DisplaysBeside),
                         nameOfMovement);

const std::vector<Display> Stacked = arrange({{0, 0, 1000, 800}, {0, 800, 500, 400}});
const Movement StackedDisplays[] = {
    {"Down", Stacked, {490, 790}, {490, 850}, {490, 850}},
    {"DownBesideTheLowerOne", Stacked, {600, 790}, {600, 850}, {600, 800 - PointerStep}},
    {"SlidesUpAlongTheLeftEdge", Stacked, {490, 810}, {-50, 790}, {0, 790}},
    {"SlidesDownAlongTheLeftEdge", Stacked, {20, 790}, {-50, 850}, {0, 850}},
    {"SlidesAlongTheRightEdgeOfTheLowerOne", Stacked, {490, 1100}, {700, 900}, {500 - PointerStep, 900}},
};
INSTANTIATE_TEST_SUITE_P(StackedDisplays, PointerConfinementTest, testing::ValuesIn(StackedDisplays),
                         nameOfMovement);

const std::vector<Display> Apart = arrange({{0, 0, 1000, 800}, {1200, 0, 1000, 800}});
const Movement Gaps[] = {
    {"StopsAtAGap", Apart, {990, 50}, {1100, 60}, {1000 - PointerStep, 60}},
    {"LeapsOverAGap", Apart, {990, 50}, {1300, 60}, {1300, 60}},
    {"StopsAtAGapFromTheOtherSide", Apart, {1210, 50}, {1100, 60}, {1200, 60}},
};
INSTANTIATE_TEST_SUITE_P(Gaps, PointerConfinementTest, testing::ValuesIn(Gaps), nameOfMovement);

const Movement Unplugged[] = {
    {"GoesToTheOnlyDisplay", One, {5000, 50}, {5000, 50}, {1512 - PointerStep, 50}},
    {"GoesToTheNearestDisplay", Apart, {1150, 900}, {1150, 900}, {1200, 800 - PointerStep}},
    {"GoesToTheFirstOfTwoAsNear",
     arrange({{0, 0, 100, 100}, {0, 200 - PointerStep, 100, 100}}),
     {-9, 150},
     {-9, 150 - PointerStep},
     {0, 100 - PointerStep}},
    {"GoesToTheFirstWhenInfinitelyFar",
     Apart,
     {9000, 9000},
     {Infinity, Infinity},
     {1000 - PointerStep, 800 - PointerStep}},
    {"PassesByADisplayWithoutArea",
     arrange({{0, 0, 10, 10}, {500, 0, 0, 10}}),
     {600, 5},
     {600, 5},
     {10 - PointerStep, 5}},
    {"StaysWithoutDisplays", {}, {12, 34}, {56, 78}, {12, 34}},
    {"GoesToADisplayNarrowerThanTheGrid",
     arrange({{0, 0, 10, 10}, {1000.001, 0, 0.001, 10}}),
     {2000, 5},
     {2000, 5},
     {1000.001, 5}},
};
INSTANTIATE_TEST_SUITE_P(Unplugged, PointerConfinementTest, testing::ValuesIn(Unplugged), nameOfMovement);

TEST(PointerConfinement, AlwaysEndsOnADisplayAndOnTheGrid) {
    const double deltas[] = {-3000.7, -700.1, -33.3, -0.003, 0, 0.002, 1, 55.5, 812.9, 4000};
    for (const auto& displays : {One, Fractional, SideBySide, Stacked, Apart}) {
        for (const Display& start : displays) {
            const Point from =
                confinePointer(displays, {-1e6, -1e6}, {start.bounds.minX() + 50, start.bounds.minY() + 50});
            for (const double deltaX : deltas) {
                for (const double deltaY : deltas) {
                    const Point reached = confinePointer(displays, from, {from.x + deltaX, from.y + deltaY});
                    EXPECT_TRUE(std::any_of(
                        displays.begin(), displays.end(),
                        [reached](const Display& display) { return display.bounds.contains(reached); }))
                        << reached.x << ", " << reached.y;
                    EXPECT_EQ(reached.x * 256, std::floor(reached.x * 256));
                    EXPECT_EQ(reached.y * 256, std::floor(reached.y * 256));
                }
            }
        }
    }
}

} // namespace
} // namespace kestrune::sim
