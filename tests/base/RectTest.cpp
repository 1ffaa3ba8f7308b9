#include "base/Geometry.h"
#include "tests/base/UnusualNumbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrune {
namespace {

// Kept out of the compiler's sight, so that the accessors run when the test does.
Rect rect(double x, double y, double width, double height) {
    const volatile double hidden[] = {x, y, width, height};
    return {hidden[0], hidden[1], hidden[2], hidden[3]};
}

TEST(Point, IsEqualWhenBothCoordinatesAre) {
    EXPECT_EQ((Point{1, 2}), (Point{1, 2}));
    EXPECT_NE((Point{1, 2}), (Point{3, 2}));
    EXPECT_NE((Point{1, 2}), (Point{1, 3}));
    EXPECT_EQ(Point(), (Point{0, 0}));
}

TEST(Point, WithACoordinateThatIsNotANumberIsEqualToNothing) {
    const Point point{NotANumber, 0};
    EXPECT_NE(point, point);
}

TEST(Size, IsEqualWhenBothLengthsAre) {
    EXPECT_EQ((Size{1, 2}), (Size{1, 2}));
    EXPECT_NE((Size{1, 2}), (Size{3, 2}));
    EXPECT_NE((Size{1, 2}), (Size{1, 3}));
    EXPECT_EQ(Size(), (Size{0, 0}));
}

TEST(Rect, IsEqualWhenOriginAndSizeAre) {
    EXPECT_EQ(rect(1, 2, 3, 4), rect(1, 2, 3, 4));
    EXPECT_NE(rect(1, 2, 3, 4), rect(0, 2, 3, 4));
    EXPECT_NE(rect(1, 2, 3, 4), rect(1, 0, 3, 4));
    EXPECT_NE(rect(1, 2, 3, 4), rect(1, 2, 0, 4));
    EXPECT_NE(rect(1, 2, 3, 4), rect(1, 2, 3, 0));
    EXPECT_EQ(Rect(), rect(0, 0, 0, 0));
}

TEST(Rect, IsNotEqualToItsStandardizedFormByItself) { EXPECT_NE(rect(10, 10, -4, 4), rect(6, 10, 4, 4)); }

TEST(Rect, TellsItsEdgesAndLengths) {
    const Rect frame = rect(-1920, 458.5, 1920, 1080.25);
    EXPECT_EQ(frame.minX(), -1920);
    EXPECT_EQ(frame.maxX(), 0);
    EXPECT_EQ(frame.minY(), 458.5);
    EXPECT_EQ(frame.maxY(), 1538.75);
    EXPECT_EQ(frame.width(), 1920);
    EXPECT_EQ(frame.height(), 1080.25);
}

TEST(Rect, HasTheEdgesOfItsStandardizedForm) {
    const Edges edges = rect(100, 50, -30, 20).edges();
    EXPECT_EQ(edges.minX, 70);
    EXPECT_EQ(edges.minY, 50);
    EXPECT_EQ(edges.maxX, 100);
    EXPECT_EQ(edges.maxY, 70);
    EXPECT_TRUE(edges.contains({70, 50}));
    EXPECT_FALSE(edges.contains({100, 60}));
}

TEST(Rect, WithNegativeLengthsTellsThoseOfItsStandardizedForm) {
    const Rect backwards = rect(100, 50, -30, -20);
    EXPECT_EQ(backwards.minX(), 70);
    EXPECT_EQ(backwards.maxX(), 100);
    EXPECT_EQ(backwards.minY(), 30);
    EXPECT_EQ(backwards.maxY(), 50);
    EXPECT_EQ(backwards.width(), 30);
    EXPECT_EQ(backwards.height(), 20);
    EXPECT_EQ(backwards.standardized(), rect(70, 30, 30, 20));
}

TEST(Rect, IsStandardizedAlongEachAxisOnItsOwn) {
    EXPECT_EQ(rect(100, 50, -30, 20).standardized(), rect(70, 50, 30, 20));
    EXPECT_EQ(rect(100, 50, 30, -20).standardized(), rect(100, 30, 30, 20));
    EXPECT_EQ(rect(100, 50, 30, 20).standardized(), rect(100, 50, 30, 20));
}

TEST(Rect, OfNothingStaysNothingWhenStandardized) {
    EXPECT_EQ(Rect::null().standardized(), Rect::null());
    EXPECT_EQ(rect(Infinity, 3, -1, -1).standardized(), Rect::null());
}

TEST(Rect, IsNullWhenACoordinateIsInfinite) {
    EXPECT_TRUE(Rect::null().isNull());
    EXPECT_TRUE(rect(Infinity, 0, 1, 1).isNull());
    EXPECT_TRUE(rect(0, Infinity, 1, 1).isNull());
    EXPECT_FALSE(rect(0, 0, 0, 0).isNull());
    EXPECT_FALSE(rect(-Infinity, 0, 1, 1).isNull());
}

TEST(Rect, IsEmptyWithoutWidthOrHeightOrWhenNull) {
    EXPECT_TRUE(rect(5, 5, 0, 10).isEmpty());
    EXPECT_TRUE(rect(5, 5, 10, 0).isEmpty());
    EXPECT_TRUE(Rect::null().isEmpty());
    EXPECT_TRUE(rect(Infinity, 0, 10, 10).isEmpty());
    EXPECT_FALSE(rect(5, 5, 10, 10).isEmpty());
    EXPECT_FALSE(rect(5, 5, -10, -10).isEmpty());
}

TEST(Rect, ContainsItsMinimumEdgesAndNotItsMaximumEdges) {
    const Rect frame = rect(10, 20, 30, 40);
    EXPECT_TRUE(frame.contains({10, 20}));
    EXPECT_TRUE(frame.contains({25, 30}));
    EXPECT_TRUE(frame.contains({std::nextafter(40.0, 0.0), std::nextafter(60.0, 0.0)}));
    EXPECT_FALSE(frame.contains({40, 30}));
    EXPECT_FALSE(frame.contains({25, 60}));
    EXPECT_FALSE(frame.contains({std::nextafter(10.0, 0.0), 30}));
    EXPECT_FALSE(frame.contains({25, std::nextafter(20.0, 0.0)}));
}

TEST(Rect, WithNegativeLengthsContainsWhatItsStandardizedFormContains) {
    const Rect backwards = rect(40, 60, -30, -40);
    EXPECT_TRUE(backwards.contains({10, 20}));
    EXPECT_FALSE(backwards.contains({40, 60}));
}

TEST(Rect, ThatIsEmptyOrNullContainsNothing) {
    EXPECT_FALSE(rect(5, 5, 0, 10).contains({5, 5}));
    EXPECT_FALSE(rect(5, 5, 10, 0).contains({5, 5}));
    EXPECT_FALSE(Rect::null().contains({Infinity, Infinity}));
    EXPECT_FALSE(Rect::null().contains({0, 0}));
    EXPECT_FALSE(rect(0, Infinity, 10, 10).contains({5, Infinity}));
}

TEST(Rect, ContainsNoPointThatIsNotANumber) {
    EXPECT_FALSE(rect(0, 0, 10, 10).contains({NotANumber, 5}));
    EXPECT_FALSE(rect(0, 0, 10, 10).contains({5, NotANumber}));
}

TEST(Rect, WithALengthOrOriginThatIsNotANumberContainsNothing) {
    EXPECT_FALSE(rect(NotANumber, 0, 10, 10).contains({5, 5}));
    EXPECT_FALSE(rect(0, NotANumber, 10, 10).contains({5, 5}));
    EXPECT_FALSE(rect(0, 0, NotANumber, 10).contains({5, 5}));
    EXPECT_FALSE(rect(0, 0, 10, NotANumber).contains({5, 5}));
}

// Constants can be made of rectangles.
static_assert(Rect(0, 0, 2, 2).contains({1, 1}));
static_assert(Rect::null().isEmpty());
static_assert(Rect(4, 4, -2, -2).standardized() == Rect(2, 2, 2, 2));

} // namespace
} // namespace kestrune
