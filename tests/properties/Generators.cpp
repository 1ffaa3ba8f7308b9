#include "tests/properties/Generators.h"

#include "tests/base/UnusualNumbers.h"

#include <array>
#include <limits>
#include <ostream>

namespace kestrune {

void showValue(const Point& point, std::ostream& stream) {
    stream << '(' << sim::shortestText(point.x) << ", " << sim::shortestText(point.y) << ')';
}

void showValue(const Rect& rect, std::ostream& stream) {
    stream << sim::shortestText(rect.size.width) << " x " << sim::shortestText(rect.size.height) << " at ";
    showValue(rect.origin, stream);
}

} // namespace kestrune

namespace kestrune::simulate {

namespace {

constexpr double GridStep = 0x1p-8;

void showStored(const std::optional<sim::PropertyList>& stored, std::ostream& stream) {
    stream << textOf(stored ? &*stored : nullptr);
}

template <typename Value>
rc::Gen<Value> oneOf(const std::vector<Value>& values) {
    return rc::gen::map(rc::gen::inRange<std::size_t>(0, values.size()),
                        [&values](std::size_t index) { return values[index]; });
}

rc::Gen<double> gridSizes(double least, double most) {
    const auto steps = [](double points) { return static_cast<int>(points / GridStep); };
    return rc::gen::map(rc::gen::inRange(steps(least), steps(most)),
                        [](int count) { return count * GridStep; });
}

// Half of them as low as the band is deep.
rc::Gen<double> heights() { return rc::gen::oneOf(gridSizes(GridStep, 16), gridSizes(16, 3000)); }

rc::Gen<Placement> placements(rc::Gen<Side> sides, rc::Gen<double> widths, rc::Gen<double> displayHeights) {
    return rc::gen::apply(
        [](Side side, std::size_t neighbour, double shift, double width, double height) {
            return Placement{side, neighbour, shift, {width, height}};
        },
        std::move(sides), rc::gen::inRange<std::size_t>(0, 16), gridNumbers(), std::move(widths),
        std::move(displayHeights));
}

rc::Gen<PlannedDisplay> tameDisplays() {
    return rc::gen::map(placements(rc::gen::element(Side::right, Side::left, Side::above, Side::below),
                                   gridSizes(GridStep, 4000), heights()),
                        [](const Placement& placement) { return PlannedDisplay{placement}; });
}

rc::Gen<PlannedDisplay> anyDisplays() {
    const auto sides = rc::gen::element(Side::right, Side::left, Side::above, Side::below, Side::onTop);
    const auto sizes = rc::gen::oneOf(gridSizes(0, 40),
                                      rc::gen::map(gridSizes(0, 3000), [](double size) { return size / 3; }));
    const auto identities = rc::gen::element(
        Identity::ordinary, Identity::withoutUUID, Identity::twin, Identity::withoutNumber,
        Identity::negativeNumber, Identity::fractionalNumber, Identity::textNumber, Identity::realNumber,
        Identity::tooLargeNumber, Identity::unknownNumber, Identity::firstNumber);
    return rc::gen::apply(
        [](const Placement& placement, Identity identity) {
            return PlannedDisplay{placement, identity};
        },
        placements(sides, sizes, sizes), identities);
}

} // namespace

void showValue(const PlannedDisplay& planned, std::ostream& stream) {
    const Placement& placement = planned.placement;
    stream << "side " << static_cast<int>(placement.side) << " of " << placement.neighbour << ", shift "
           << sim::shortestText(placement.shift) << ", " << sim::shortestText(placement.size.width) << " x "
           << sim::shortestText(placement.size.height) << ", identity " << static_cast<int>(planned.identity);
}

void showValue(const StoredMargin& margin, std::ostream& stream) { showStored(margin.stored, stream); }
void showValue(const StoredSwitch& isEnabled, std::ostream& stream) { showStored(isEnabled.stored, stream); }
void showValue(const StoredChoice& choice, std::ostream& stream) { showStored(choice.stored, stream); }

rc::Gen<double> gridNumbers() {
    // Ranges shrink towards their least value; even counts stand for numbers from 0 up, odd ones for the
    // rest.
    return rc::gen::map(rc::gen::inRange(0, 2'000'000),
                        [](int count) { return (count % 2 == 0 ? count / 2 : -(count + 1) / 2) * GridStep; });
}

rc::Gen<double> anyNumbers() {
    return rc::gen::oneOf(gridNumbers(), rc::gen::arbitrary<double>(),
                          rc::gen::element(0.0, -0.0, Infinity, -Infinity, 1e300, 5e-324,
                                           std::numeric_limits<double>::quiet_NaN()));
}

rc::Gen<Point> anyPoints() {
    return rc::gen::apply([](double x, double y) { return Point{x, y}; }, anyNumbers(), anyNumbers());
}

rc::Gen<Rect> gridRects() {
    return rc::gen::apply(
        [](double x, double y, double width, double height) {
            return Rect{x, y, width, height};
        },
        gridNumbers(), gridNumbers(), gridSizes(GridStep, 4000), gridSizes(GridStep, 4000));
}

rc::Gen<Rect> anyRects() {
    return rc::gen::oneOf(rc::gen::apply(
                              [](double x, double y, double width, double height) {
                                  return Rect{x, y, width, height};
                              },
                              gridNumbers(), gridNumbers(), gridNumbers(), gridNumbers()),
                          rc::gen::apply(
                              [](double x, double y, double width, double height) {
                                  return Rect{x, y, width, height};
                              },
                              anyNumbers(), anyNumbers(), anyNumbers(), anyNumbers()),
                          rc::gen::just(Rect::null()));
}

rc::Gen<std::vector<PlannedDisplay>> tamePlans() {
    return rc::gen::nonEmpty(
        rc::gen::resize(8, rc::gen::container<std::vector<PlannedDisplay>>(tameDisplays())));
}

rc::Gen<std::vector<PlannedDisplay>> anyPlans() {
    return rc::gen::resize(
        10, rc::gen::container<std::vector<PlannedDisplay>>(rc::gen::oneOf(tameDisplays(), anyDisplays())));
}

rc::Gen<StoredMargin> anyMargins() {
    return rc::gen::oneOf(oneOf(remarkableMargins()), rc::gen::map(gridSizes(0, 100), marginOf),
                          rc::gen::map(rc::gen::arbitrary<double>(), marginOf));
}

rc::Gen<StoredSwitch> anySwitches() {
    return rc::gen::oneOf(rc::gen::just(absentSwitch()), oneOf(remarkableSwitches()));
}

rc::Gen<StoredChoice> anyChoices(const std::vector<sim::Display>& displays) {
    if (displays.empty()) {
        return oneOf(remarkableChoices());
    }
    const auto ours = rc::gen::map(rc::gen::elementOf(displays), [](const sim::Display& display) {
        return choiceOf(display.uuid.value_or("display-" + std::to_string(display.displayID)));
    });
    return rc::gen::oneOf(ours, oneOf(remarkableChoices()));
}

rc::Gen<Point> pointsAround(const std::vector<sim::Display>& displays) {
    if (displays.empty()) {
        return anyPoints();
    }
    const auto around = rc::gen::apply(
        [](const sim::Display& display, double right, double up) {
            const Rect& bounds = display.bounds;
            return Point{bounds.minX() + bounds.width() * right, bounds.maxY() - up};
        },
        rc::gen::elementOf(displays), rc::gen::element(0.0, 0.5, 0.25, 1.0, -0.01),
        rc::gen::oneOf(gridSizes(-2, 16), gridSizes(-2, 3000)));
    return rc::gen::oneOf(around, around, anyPoints());
}

} // namespace kestrune::simulate
