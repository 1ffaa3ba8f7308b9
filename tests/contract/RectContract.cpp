// The values of base/ follow the platform's rectangle functions; an implementation that hands rectangles
// across unchanged needs both sides to agree.
#include "base/Geometry.h"
#include "tests/base/UnusualNumbers.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kestrune::contract {
namespace {

struct ContainsCase {
    const char* name;
    Rect rect;
    Point point;
    bool contained;
};

void PrintTo(const ContainsCase& example, std::ostream* output) { *output << example.name; }

class RectContainsContract : public testing::TestWithParam<ContainsCase> {};

TEST_P(RectContainsContract, FollowsThePlatform) {
    EXPECT_EQ(GetParam().rect.contains(GetParam().point), GetParam().contained);
}

const ContainsCase ContainsCases[] = {
    {"Inside", {0, 0, 10, 10}, {5, 5}, true},
    {"MinimumCorner", {0, 0, 10, 10}, {0, 0}, true},
    {"MinimumXEdge", {0, 0, 10, 10}, {0, 5}, true},
    {"MinimumYEdge", {0, 0, 10, 10}, {5, 0}, true},
    {"MaximumXEdge", {0, 0, 10, 10}, {10, 5}, false},
    {"MaximumYEdge", {0, 0, 10, 10}, {5, 10}, false},
    {"LastPointerPositionBeforeTheMaximumEdge", {0, 0, 1512, 982}, {5, 982 - 1.0 / 256}, true},
    {"LeftOfIt", {0, 0, 10, 10}, {-0.5, 5}, false},
    {"AboveIt", {0, 0, 10, 10}, {5, -0.5}, false},
    {"NegativeWidth", {10, 0, -10, 10}, {0, 5}, true},
    {"NegativeWidthAtTheOriginsEdge", {10, 0, -10, 10}, {10, 5}, false},
    {"NegativeHeight", {0, 10, 10, -10}, {5, 0}, true},
    {"NoWidth", {0, 0, 0, 10}, {0, 5}, false},
    {"NoHeight", {0, 0, 10, 0}, {5, 0}, false},
    {"Null", Rect::null(), {Infinity, Infinity}, false},
    {"NotANumberX", {0, 0, 10, 10}, {NotANumber, 5}, false},
    {"NotANumberY", {0, 0, 10, 10}, {5, NotANumber}, false},
    {"NotANumberWidth", {0, 0, NotANumber, 10}, {5, 5}, false},
};

std::string nameOfPoint(const testing::TestParamInfo<ContainsCase>& example) { return example.param.name; }

INSTANTIATE_TEST_SUITE_P(Points, RectContainsContract, testing::ValuesIn(ContainsCases), nameOfPoint);

TEST(RectContract, TellsLengthsAndEdgesOfTheStandardizedRectangle) {
    const Rect rect(10, 20, -4, -6);
    EXPECT_EQ(rect.width(), 4);
    EXPECT_EQ(rect.height(), 6);
    EXPECT_EQ(rect.minX(), 6);
    EXPECT_EQ(rect.minY(), 14);
    EXPECT_EQ(rect.maxX(), 10);
    EXPECT_EQ(rect.maxY(), 20);
}

TEST(RectContract, LeavesTheNullRectangleNullWhenStandardized) {
    EXPECT_TRUE(Rect::null().standardized().isNull());
}

} // namespace
} // namespace kestrune::contract
