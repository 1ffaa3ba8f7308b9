#include "sim/hardware/PointerConfinement.h"
#include "tests/properties/Generators.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

namespace kestrune::simulate {

namespace {

bool isOnADisplay(const std::vector<sim::Display>& displays, Point point) {
    return std::any_of(displays.begin(), displays.end(),
                       [point](const sim::Display& display) { return display.bounds.contains(point); });
}

bool isOnTheGrid(double value) { return std::floor(value * 256) == value * 256; }

bool isNumber(Point point) { return !std::isnan(point.x) && !std::isnan(point.y); }

// A place where the pointer can be, as the confinement itself finds it.
Point reachable(const std::vector<sim::Display>& displays, Point point) {
    return sim::confinePointer(displays, {0, 0}, point);
}

} // namespace

RC_GTEST_PROP(PointerConfinementProperties, ThePointerEndsOnADisplay, ()) {
    const std::vector<sim::Display> displays = arrange(*tamePlans(), 1);
    const Point from = *pointsAround(displays);
    const Point wanted = *pointsAround(displays);
    RC_PRE(isNumber(wanted));
    RC_ASSERT(isOnADisplay(displays, sim::confinePointer(displays, from, wanted)));
}

RC_GTEST_PROP(PointerConfinementProperties, ThePointerEndsOnAPositionThatTheHardwareKnows, ()) {
    const std::vector<sim::Display> displays = arrange(*tamePlans(), 1);
    const Point wanted = *pointsAround(displays);
    RC_PRE(isNumber(wanted));
    const Point end = sim::confinePointer(displays, reachable(displays, {0, 0}), wanted);
    RC_ASSERT(isOnTheGrid(end.x));
    RC_ASSERT(isOnTheGrid(end.y));
}

RC_GTEST_PROP(PointerConfinementProperties, APositionOnADisplayIsReached, ()) {
    const std::vector<sim::Display> displays = arrange(*tamePlans(), 1);
    const sim::Display& display = displays[*rc::gen::inRange<std::size_t>(0, displays.size())];
    const auto along = [](double size) { return *rc::gen::inRange(0, static_cast<int>(size * 256)) / 256.0; };
    const Point inside{display.bounds.minX() + along(display.bounds.width()),
                       display.bounds.minY() + along(display.bounds.height())};
    RC_ASSERT(sim::confinePointer(displays, *pointsAround(displays), inside) == inside);
}

RC_GTEST_PROP(PointerConfinementProperties, APointerThatIsNotMovedStays, ()) {
    const std::vector<sim::Display> displays = arrange(*tamePlans(), 1);
    const Point somewhere = *pointsAround(displays);
    RC_PRE(isNumber(somewhere));
    const Point at = reachable(displays, somewhere);
    RC_ASSERT(sim::confinePointer(displays, at, at) == at);
}

RC_GTEST_PROP(PointerConfinementProperties, NothingMovesWithoutDisplays, ()) {
    const Point from{*gridNumbers(), *gridNumbers()};
    RC_ASSERT(sim::confinePointer({}, from, *anyPoints()) == from);
}

RC_GTEST_PROP(PointerConfinementProperties, AMotionToWhatIsNoNumberIsNoMotion, ()) {
    const std::vector<sim::Display> displays = arrange(*tamePlans(), 1);
    const Point from = reachable(displays, {*gridNumbers(), *gridNumbers()});
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const double other = *anyNumbers();
    RC_ASSERT(sim::confinePointer(displays, from, {notANumber, other}) == from);
    RC_ASSERT(sim::confinePointer(displays, from, {other, notANumber}) == from);
}

} // namespace kestrune::simulate
