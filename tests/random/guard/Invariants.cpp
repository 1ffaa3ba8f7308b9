#include "tests/random/guard/Invariants.h"

#include "tests/random/common/Arrangement.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace kestrune::simulate {

namespace {

bool identical(double one, double other) {
    return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

bool isHeldBelowTopEdge(const replay::JudgedDesk& desk, const sim::Delivery& delivery) {
    const replay::JudgedDisplay* display = displayUnder(desk, delivery.sent);
    if (display == nullptr) {
        return false;
    }
    const double highest = display->bounds.origin.y + 1;
    return delivery.delivered.y == highest &&
           replay::JudgedBand(display->bounds, desk.margin).held == highest;
}

bool overlapsAnother(const sim::Display& target, const GuardModel& state,
                     const std::vector<sim::Display>& connected) {
    const bool overlapsConnected =
        std::any_of(connected.begin(), connected.end(), [&](const sim::Display& other) {
            return other.displayID != target.displayID && overlap(other.bounds, target.bounds);
        });
    const auto overlapping =
        std::count_if(state.displays.begin(), state.displays.end(),
                      [&](const KnownDisplay& known) { return overlap(known.bounds, target.bounds); });
    return overlapsConnected || overlapping > 1;
}

} // namespace

std::string textOf(Point point) {
    return "(" + sim::shortestText(point.x) + ", " + sim::shortestText(point.y) + ")";
}

bool identical(Point one, Point other) { return identical(one.x, other.x) && identical(one.y, other.y); }

std::optional<std::string> violationOf(const GuardModel& state, bool handled, const sim::Delivery& delivery) {
    const std::string way = textOf(delivery.sent) + " was delivered at " + textOf(delivery.delivered);
    if (delivery.swallowed) {
        return "an event was swallowed: " + textOf(delivery.sent);
    }
    if (delivery.replaced) {
        return "an event was replaced: " + textOf(delivery.sent);
    }
    if (!identical(delivery.sent.x, delivery.delivered.x)) {
        return "x changed: " + way;
    }
    const replay::JudgedDesk desk = state.judged();
    const bool changed = !identical(delivery.sent, delivery.delivered);
    if (changed && (!handled || !guardedBandUnder(desk, delivery.sent))) {
        return "an event changed where none may: " + way;
    }
    if (delivery.delivered.y > delivery.sent.y && !isHeldBelowTopEdge(desk, delivery)) {
        return "an event moved downwards: " + way;
    }
    const Point expected = handled ? expectedLocation(desk, delivery.sent) : delivery.sent;
    if (!identical(delivery.delivered, expected)) {
        return way + ", expected " + textOf(expected);
    }
    return std::nullopt;
}

bool guardKeepsDockFrom(const sim::Display& target, const GuardModel& state,
                        const std::vector<sim::Display>& connected) {
    if (!state.enabled || state.displays.size() < 2 || !state.pinned) {
        return false;
    }
    const auto known =
        std::find_if(state.displays.begin(), state.displays.end(),
                     [&](const KnownDisplay& candidate) { return candidate.bounds == target.bounds; });
    if (known == state.displays.end() || known->identifier == state.pinned->identifier) {
        return false;
    }
    if (overlapsAnother(target, state, connected)) {
        return false;
    }
    const double pullingFrom = target.bounds.maxY() - 1;
    return replay::JudgedBand(known->bounds, replay::bandDepth(state.storedMargin)).held < pullingFrom;
}

} // namespace kestrune::simulate
