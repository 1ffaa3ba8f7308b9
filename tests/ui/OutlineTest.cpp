#include "ui/Outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace kestrune::ui {

namespace {

ShapeElement shape(double radius, CornerStyle style, double lineWidth = 0) {
    ShapeElement element{{10, 20, 200, 100}, radius, style};
    element.lineWidth = lineWidth;
    return element;
}

std::vector<Point> pointsOf(const ShapeElement& element) {
    std::vector<Point> points;
    for (const OutlineSide& side : outlineOf(element).sides) {
        points.insert(points.end(), {side.lineEnd, side.firstControl, side.secondControl, side.curveEnd});
    }
    return points;
}

// Of the curve at a side's end, from 0 at its beginning to 1.
Point onCurve(const OutlineSide& side, double place) {
    const double rest = 1 - place;
    const auto blend = [&](double first, double second, double third, double fourth) {
        return rest * rest * rest * first + 3 * rest * rest * place * second +
               3 * rest * place * place * third + place * place * place * fourth;
    };
    return {blend(side.lineEnd.x, side.firstControl.x, side.secondControl.x, side.curveEnd.x),
            blend(side.lineEnd.y, side.firstControl.y, side.secondControl.y, side.curveEnd.y)};
}

double distance(Point one, Point other) { return std::hypot(one.x - other.x, one.y - other.y); }

} // namespace

TEST(Outline, OfSharpCornersIsTheRectangle) {
    const Outline outline = outlineOf(shape(0, CornerStyle::continuous));
    EXPECT_EQ(outline.start(), (Point{10, 20}));
    EXPECT_EQ(outline.sides[0].lineEnd, (Point{210, 20}));
    EXPECT_EQ(outline.sides[0].curveEnd, (Point{210, 20}));
    EXPECT_EQ(outline.sides[1].curveEnd, (Point{210, 120}));
    EXPECT_EQ(outline.sides[2].curveEnd, (Point{10, 120}));
}

TEST(Outline, OfCircularCornersIsAQuarterCircleAtEach) {
    const Outline outline = outlineOf(shape(30, CornerStyle::circular));
    const Point centers[] = {{180, 50}, {180, 90}, {40, 90}, {40, 50}};
    for (std::size_t side = 0; side < 4; ++side) {
        for (double place = 0; place <= 1; place += 0.1) {
            EXPECT_NEAR(distance(onCurve(outline.sides[side], place), centers[side]), 30, 0.01) << side;
        }
    }
    EXPECT_EQ(outline.start(), (Point{40, 20}));
}

TEST(Outline, OfContinuousCornersBeginsEarlierAndHasTheSameMiddle) {
    const OutlineSide circular = outlineOf(shape(20, CornerStyle::circular)).sides[0];
    const OutlineSide continuous = outlineOf(shape(20, CornerStyle::continuous)).sides[0];
    EXPECT_EQ(circular.lineEnd, (Point{190, 20}));
    EXPECT_EQ(continuous.lineEnd, (Point{180, 20}));
    EXPECT_EQ(continuous.curveEnd, (Point{210, 50}));
    EXPECT_LT(distance(onCurve(circular, 0.5), onCurve(continuous, 0.5)), 0.02);
    // It leaves the edge where the quarter circle is still on it.
    const Point early = onCurve(continuous, 0.1);
    EXPECT_LT(early.x, circular.lineEnd.x);
    EXPECT_GT(early.y, 20.1);
}

TEST(Outline, HasNoLargerCornersThanThereIsRoomFor) {
    EXPECT_EQ(pointsOf(shape(80, CornerStyle::circular)), pointsOf(shape(50, CornerStyle::circular)));
    EXPECT_EQ(pointsOf(shape(80, CornerStyle::continuous)),
              pointsOf(shape(50 / 1.5, CornerStyle::continuous)));
    EXPECT_EQ(pointsOf(shape(-5, CornerStyle::circular)), pointsOf(shape(0, CornerStyle::circular)));
}

TEST(Outline, OfALineIsItsMiddleInsideTheEdge) {
    ShapeElement inside{{11, 21, 198, 98}, 29, CornerStyle::continuous};
    EXPECT_EQ(pointsOf(shape(30, CornerStyle::continuous, 2)), pointsOf(inside));
    EXPECT_EQ(outlineOf(shape(0.5, CornerStyle::continuous, 2)).sides[0].lineEnd, (Point{209, 21}));
}

TEST(Outline, OfALineWithoutRoomIsASharpOne) {
    ShapeElement thin{{0, 0, 10, 1}, 3, CornerStyle::circular};
    thin.lineWidth = 2;
    EXPECT_EQ(outlineOf(thin).sides[0].lineEnd, outlineOf(thin).sides[0].curveEnd);
}

} // namespace kestrune::ui
