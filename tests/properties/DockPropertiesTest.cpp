#include "sim/hardware/Dock.h"
#include "tests/properties/Generators.h"
#include "tests/random/guard/GuardedSession.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <chrono>
#include <ostream>

namespace kestrune::simulate {

namespace {

using std::chrono::milliseconds;

struct Arrival {
    Point location;
    double deltaY;
    int pause; // before it, in milliseconds
};

void showValue(const Arrival& arrival, std::ostream& stream) {
    stream << "after " << arrival.pause << " ms, moved by " << arrival.deltaY << ", at ";
    kestrune::showValue(arrival.location, stream);
}

// Most of them where the Dock may be pulled.
rc::Gen<Arrival> arrivals(const std::vector<sim::Display>& displays) {
    const auto lastPoints = rc::gen::map(rc::gen::elementOf(displays), [](const sim::Display& display) {
        const Rect& bounds = display.bounds;
        return Point{bounds.minX() + bounds.width() / 2, bounds.maxY() - std::min(0.5, bounds.height() / 2)};
    });
    return rc::gen::apply(
        [](Point location, double deltaY, int pause) {
            return Arrival{location, deltaY, pause};
        },
        rc::gen::oneOf(lastPoints, lastPoints, pointsAround(displays)),
        rc::gen::element(1.0, 0.25, 0.0, -1.0), rc::gen::element(0, 1, 100, 250));
}

bool holds(const sim::Display& display, Point point) {
    const Rect& bounds = display.bounds;
    return bounds.origin.x <= point.x && point.x < bounds.origin.x + bounds.size.width &&
           bounds.origin.y <= point.y && point.y < bounds.origin.y + bounds.size.height;
}

// In the last point above the bottom edge of a display, with nothing below that edge.
bool isAtOuterBottomEdge(const std::vector<sim::Display>& displays, DisplayID displayID, Point point) {
    const auto target = std::find_if(displays.begin(), displays.end(), [&](const sim::Display& display) {
        return display.displayID == displayID;
    });
    const double bottom = target->bounds.origin.y + target->bounds.size.height;
    return holds(*target, point) && point.y >= bottom - 1 &&
           std::none_of(displays.begin(), displays.end(), [&](const sim::Display& display) {
               return holds(display, {point.x, bottom});
           });
}

} // namespace

RC_GTEST_PROP(DockProperties, MovesOnlyByAPushThatLastsAtAnOuterBottomEdge, ()) {
    const std::vector<sim::Display> connected = arrange(*tamePlans(), 1);
    const sim::Displays displays(connected);
    sim::Dock dock(displays, milliseconds(200));
    sim::Duration now{0};
    std::vector<std::pair<sim::Duration, Arrival>> arrived; // since the Dock moved last
    for (const Arrival& arrival : *rc::gen::container<std::vector<Arrival>>(arrivals(connected))) {
        now += milliseconds(arrival.pause);
        const std::uint64_t movesBefore = dock.moves();
        dock.pointerArrived(arrival.location, arrival.deltaY, now);
        arrived.emplace_back(now, arrival);
        if (dock.moves() == movesBefore) {
            continue;
        }
        RC_ASSERT(dock.moves() == movesBefore + 1);
        RC_ASSERT(arrival.deltaY > 0);
        // Back to where the push began: every arrival since then was at that edge.
        const auto beforePush = std::find_if(arrived.rbegin(), arrived.rend(), [&](const auto& past) {
            return !isAtOuterBottomEdge(connected, *dock.display(), past.second.location);
        });
        sim::Duration since = now;
        std::for_each(arrived.rbegin(), beforePush,
                      [&since](const auto& past) { since = past.second.deltaY > 0 ? past.first : since; });
        RC_ASSERT(now - since >= milliseconds(200));
        arrived.clear();
    }
}

RC_GTEST_PROP(DockProperties, StaysWhereThePointerIsNeverMovedDown, ()) {
    const std::vector<sim::Display> connected = arrange(*tamePlans(), 1);
    const sim::Displays displays(connected);
    sim::Dock dock(displays, milliseconds(0));
    sim::Duration now{0};
    for (const Arrival& arrival : *rc::gen::container<std::vector<Arrival>>(arrivals(connected))) {
        now += milliseconds(arrival.pause);
        dock.pointerArrived(arrival.location, -std::abs(arrival.deltaY), now);
    }
    RC_ASSERT(dock.moves() == 0U);
    RC_ASSERT(dock.display() == connected.front().displayID);
}

// Displays taller than 2 points on which the guard can hold the pointer off the Dock's edge.
RC_GTEST_PROP(DockProperties, StaysOnThePinnedDisplayWhileTheGuardRuns, ()) {
    std::vector<PlannedDisplay> plan = *tamePlans();
    for (PlannedDisplay& planned : plan) {
        planned.placement.size.height += 2;
    }
    const std::vector<sim::Display> connected = arrange(plan, 1);
    GuardedSession session(connected, {absentMargin(), absentSwitch(), choiceOf(*connected.front().uuid)},
                           milliseconds(0), true);
    session.start();
    for (const Arrival& arrival : *rc::gen::container<std::vector<Arrival>>(arrivals(connected))) {
        const Point from = session.pointer();
        session.move(arrival.location.x - from.x, arrival.location.y - from.y, EventType::mouseMoved);
        session.move(0, 20, EventType::leftMouseDragged);
        session.move(0, 20, EventType::mouseMoved);
        session.advance(milliseconds(arrival.pause));
    }
    RC_ASSERT(session.violation() == std::nullopt);
    RC_ASSERT(session.counts().dockMoves == 0U);
}

} // namespace kestrune::simulate
