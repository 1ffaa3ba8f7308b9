#include "tests/properties/Generators.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace kestrune::simulate {

namespace {

bool isNumber(double value) { return value == value; }

bool hasOnlyNumbers(const Rect& rect) {
    return isNumber(rect.origin.x) && isNumber(rect.origin.y) && isNumber(rect.size.width) &&
           isNumber(rect.size.height);
}

} // namespace

RC_GTEST_PROP(RectProperties, StandardizingTwiceIsStandardizingOnce, ()) {
    const Rect rect = *anyRects();
    RC_PRE(hasOnlyNumbers(rect.standardized()));
    RC_ASSERT(rect.standardized().standardized() == rect.standardized());
}

RC_GTEST_PROP(RectProperties, AStandardizedRectangleHasNoNegativeSize, ()) {
    const Rect rect = *anyRects();
    RC_ASSERT(!(rect.standardized().size.width < 0));
    RC_ASSERT(!(rect.standardized().size.height < 0));
}

RC_GTEST_PROP(RectProperties, StandardizingKeepsTheEdges, ()) {
    const double x = *gridNumbers();
    const double y = *gridNumbers();
    const double width = *gridNumbers();
    const double height = *gridNumbers();
    const Rect rect{x, y, width, height};
    const Rect standardized = rect.standardized();
    RC_ASSERT(standardized.minX() == std::min(x, x + width));
    RC_ASSERT(standardized.maxX() == std::max(x, x + width));
    RC_ASSERT(standardized.minY() == std::min(y, y + height));
    RC_ASSERT(standardized.maxY() == std::max(y, y + height));
    RC_ASSERT(rect.minX() == standardized.minX());
    RC_ASSERT(rect.maxY() == standardized.maxY());
}

RC_GTEST_PROP(RectProperties, ContainsTheSamePointsHoweverItsCornersAreNamed, ()) {
    const Rect rect = *gridRects();
    const Rect fromOtherCorner{rect.maxX(), rect.maxY(), -rect.size.width, -rect.size.height};
    const Point point{*gridNumbers(), *gridNumbers()};
    RC_ASSERT(fromOtherCorner.contains(point) == rect.contains(point));
}

RC_GTEST_PROP(RectProperties, ContainsItsMinimumCornerAndItsInside, ()) {
    const Rect rect = *gridRects();
    RC_ASSERT(rect.contains(rect.origin));
    RC_ASSERT(rect.contains({rect.maxX() - 0x1p-8, rect.maxY() - 0x1p-8}));
}

RC_GTEST_PROP(RectProperties, ExcludesItsMaximumEdgesAndWhatIsBeyond, ()) {
    const Rect rect = *gridRects();
    RC_ASSERT(!rect.contains({rect.maxX(), rect.minY()}));
    RC_ASSERT(!rect.contains({rect.minX(), rect.maxY()}));
    RC_ASSERT(!rect.contains({rect.minX() - 0x1p-8, rect.minY()}));
    RC_ASSERT(!rect.contains({rect.minX(), rect.minY() - 0x1p-8}));
}

RC_GTEST_PROP(RectProperties, AnEmptyOrNullRectangleContainsNothing, ()) {
    const Rect rect = *anyRects();
    const Rect flat{rect.origin.x, rect.origin.y, rect.size.width, 0};
    const Rect thin{rect.origin.x, rect.origin.y, 0, rect.size.height};
    const Point point = *anyPoints();
    RC_ASSERT(!flat.contains(point));
    RC_ASSERT(!flat.contains(flat.origin));
    RC_ASSERT(!thin.contains(point));
    RC_ASSERT(!thin.contains(thin.origin));
    RC_ASSERT(!Rect::null().contains(point));
    RC_ASSERT(Rect::null().isEmpty());
}

RC_GTEST_PROP(RectProperties, WhatIsNoNumberIsNeverInside, ()) {
    const Rect rect = *anyRects();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const double other = *anyNumbers();
    RC_ASSERT(!rect.contains({notANumber, other}));
    RC_ASSERT(!rect.contains({other, notANumber}));
}

RC_GTEST_PROP(RectProperties, RectanglesSideBySideShareNoPoint, ()) {
    const Rect rect = *gridRects();
    const Rect below{rect.minX(), rect.maxY(), rect.width(), rect.height()};
    const Point point{*gridNumbers(), *gridNumbers()};
    RC_ASSERT(!(rect.contains(point) && below.contains(point)));
    RC_ASSERT(below.contains({rect.minX(), rect.maxY()}));
}

} // namespace kestrune::simulate
