#include "tests/properties/Generators.h"
#include "tests/random/guard/GuardedSession.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <chrono>

namespace kestrune::simulate {

namespace {

constexpr EventType Moved = EventType::mouseMoved;

rc::Gen<EventType> eventTypes() {
    return rc::gen::element(EventType::mouseMoved, EventType::leftMouseDragged, EventType::rightMouseDragged,
                            EventType::otherMouseDragged);
}

} // namespace

// The session compares every delivery with the oracle to the last bit.
RC_GTEST_PROP(DeliveryProperties, EveryEventArrivesWhereTheRuleSays, ()) {
    const std::vector<sim::Display> displays = arrange(*anyPlans(), 1);
    const StoredEntries entries{*anyMargins(), *anySwitches(), *anyChoices(displays)};
    GuardedSession session(displays, entries, sim::Dock::DefaultDwell, *rc::gen::arbitrary<bool>());
    session.start();
    const auto points = *rc::gen::container<std::vector<Point>>(pointsAround(displays));
    for (const Point& point : points) {
        session.post(*eventTypes(), point);
    }
    session.finish();
    RC_CLASSIFY(session.counts().moved > 0U, "moved an event");
    RC_ASSERT(session.violation() == std::nullopt);
}

RC_GTEST_PROP(DeliveryProperties, ChangedMarginsAndSwitchesHoldFromTheNextEvent, ()) {
    const std::vector<sim::Display> displays = arrange(*tamePlans(), 1);
    GuardedSession session(displays, {}, sim::Dock::DefaultDwell, true);
    session.start();
    const auto points = *rc::gen::container<std::vector<Point>>(pointsAround(displays));
    for (const Point& point : points) {
        session.store(*anyMargins());
        session.store(*anySwitches());
        session.post(Moved, point);
    }
    RC_CLASSIFY(session.counts().moved > 0U, "moved an event");
    RC_ASSERT(session.violation() == std::nullopt);
}

RC_GTEST_PROP(DeliveryProperties, AGuardThatDoesNotRunChangesNothing, ()) {
    const std::vector<sim::Display> displays = arrange(*anyPlans(), 1);
    GuardedSession session(displays, {}, sim::Dock::DefaultDwell, true);
    session.refreshScreens();
    for (const Point& point : *rc::gen::container<std::vector<Point>>(pointsAround(displays))) {
        session.post(Moved, point);
    }
    RC_ASSERT(session.violation() == std::nullopt);
    RC_ASSERT(session.counts().moved == 0U);
}

RC_GTEST_PROP(DeliveryProperties, ASingleDisplayIsNeverGuarded, ()) {
    const std::vector<sim::Display> displays = arrange({(*tamePlans()).front()}, 1);
    GuardedSession session(displays, {*anyMargins(), absentSwitch(), *anyChoices(displays)},
                           sim::Dock::DefaultDwell, true);
    session.start();
    for (const Point& point : *rc::gen::container<std::vector<Point>>(pointsAround(displays))) {
        session.post(Moved, point);
    }
    RC_ASSERT(session.violation() == std::nullopt);
    RC_ASSERT(session.counts().moved == 0U);
}

} // namespace kestrune::simulate
