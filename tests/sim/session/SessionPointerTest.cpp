// The pointer of a session: hardware motion, posted events, and what follows the displays.
#include "sim/session/Session.h"
#include "tests/contract/RecordingTap.h"
#include "tests/sim/hardware/PointerStep.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using contract::ReceivedEvents;
using contract::RecordingTap;

SessionOptions twoDisplays() {
    SessionOptions options;
    options.displays = {makeDisplay(1, "Primary", {0, 0, 1000, 800}),
                        makeDisplay(2, "Right", {1000, 0, 1000, 900})};
    return options;
}

Event* moveTo(Event* event, Point location) {
    event->setLocation(location);
    return event;
}

TEST(SessionPointer, StartsInTheMiddleOfThePrimaryDisplay) {
    const Session session(twoDisplays());
    EXPECT_EQ(session.pointer(), (Point{500, 400}));
}

TEST(SessionPointer, StartsAtTheOriginWithoutDisplays) {
    SessionOptions options;
    options.displays.clear();
    Session session(options);
    EXPECT_EQ(session.pointer(), (Point{0, 0}));
    EXPECT_EQ(session.movePointer(10, 10).delivered, (Point{0, 0}));
}

TEST(SessionPointer, FollowsTheHardware) {
    Session session(twoDisplays());
    const Delivery delivery = session.movePointer(10.5, -20.25, EventType::leftMouseDragged);
    EXPECT_EQ(delivery.type, EventType::leftMouseDragged);
    EXPECT_EQ(delivery.sent, (Point{510.5, 379.75}));
    EXPECT_EQ(delivery.delivered, delivery.sent);
    EXPECT_FALSE(delivery.swallowed);
    EXPECT_FALSE(delivery.replaced);
    EXPECT_EQ(session.pointer(), delivery.sent);
}

TEST(SessionPointer, StopsAtTheEdgesOfTheDisplays) {
    Session session(twoDisplays());
    EXPECT_EQ(session.movePointer(0, 5000).sent, (Point{500, 800 - PointerStep}));
    EXPECT_EQ(session.movePointerTo({-50, -50}).sent, (Point{0, 0}));
    EXPECT_EQ(session.pointer(), (Point{0, 0}));
}

TEST(SessionPointer, IsPlacedWithoutAnEvent) {
    Session session(twoDisplays());
    ReceivedEvents received;
    RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    session.placePointer({1500, 5000});
    EXPECT_EQ(session.pointer(), (Point{1500, 900 - PointerStep}));
    EXPECT_TRUE(received.empty());
}

TEST(SessionPointer, GoesWhereATapMovesTheEvent) {
    Session session(twoDisplays());
    ReceivedEvents received;
    RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event* event) { return moveTo(event, {100, 100}); });
    const Delivery delivery = session.movePointer(10, 0);
    EXPECT_EQ(delivery.sent, (Point{510, 400}));
    EXPECT_EQ(delivery.delivered, (Point{100, 100}));
    EXPECT_EQ(session.pointer(), (Point{100, 100}));
    EXPECT_EQ(session.movePointer(10, 0).sent, (Point{110, 100}));
}

TEST(SessionPointer, StaysWithTheHardwareWhenTheCursorDoesNotFollowEvents) {
    SessionOptions options = twoDisplays();
    options.cursorFollowsEvents = false;
    Session session(options);
    ReceivedEvents received;
    RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event* event) { return moveTo(event, {100, 100}); });
    EXPECT_EQ(session.movePointer(10, 0).delivered, (Point{100, 100}));
    EXPECT_EQ(session.pointer(), (Point{510, 400}));
    EXPECT_EQ(session.movePointer(10, 0).sent, (Point{520, 400}));
    session.post(EventType::mouseMoved, {700, 700});
    EXPECT_EQ(session.pointer(), (Point{520, 400}));
}

TEST(SessionPointer, GoesWithAnEventThatATapDeletes) {
    Session session(twoDisplays());
    ReceivedEvents received;
    RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event*) { return nullptr; });
    const Delivery delivery = session.movePointer(10, 0);
    EXPECT_TRUE(delivery.swallowed);
    EXPECT_EQ(session.pointer(), (Point{510, 400}));
}

TEST(SessionPointer, GoesToAPostedEventAsFarAsThereAreDisplays) {
    Session session(twoDisplays());
    EXPECT_EQ(session.post(EventType::mouseMoved, {300, 5000}).delivered, (Point{300, 5000}));
    EXPECT_EQ(session.pointer(), (Point{300, 800 - PointerStep}));
}

TEST(SessionPointer, StaysForAPostedEventWithoutANumber) {
    Session session(twoDisplays());
    session.post(EventType::mouseMoved, {std::numeric_limits<double>::quiet_NaN(), 5});
    EXPECT_EQ(session.pointer(), (Point{500, 400}));
    EXPECT_EQ(session.movePointer(1, 1).sent, (Point{501, 401}));
}

TEST(SessionPointer, JumpsToADisplayThatIsLeft) {
    Session session(twoDisplays());
    session.placePointer({1500, 850});
    session.dock().place(2);
    session.changeDisplays({makeDisplay(1, "Primary", {0, 0, 1000, 800})});
    EXPECT_EQ(session.pointer(), (Point{1000 - PointerStep, 800 - PointerStep}));
    EXPECT_EQ(session.dock().display(), 1U);
    EXPECT_EQ(session.dock().moves(), 0U);
}

TEST(SessionPointer, StaysWhileNoDisplayIsConnected) {
    Session session(twoDisplays());
    session.changeDisplays({});
    EXPECT_EQ(session.pointer(), (Point{500, 400}));
    EXPECT_EQ(session.dock().display(), std::nullopt);
    session.changeDisplays({makeDisplay(5, "New", {0, 0, 100, 100})});
    EXPECT_EQ(session.pointer(), (Point{100 - PointerStep, 100 - PointerStep}));
    EXPECT_EQ(session.dock().display(), 5U);
}

TEST(SessionPointer, PullsTheDockWhenItIsPushedDown) {
    Session session(twoDisplays());
    session.placePointer({1500, 890});
    for (int count = 0; count < 6; ++count) {
        session.movePointer(0, 20);
        session.advance(50ms);
    }
    EXPECT_EQ(session.dock().display(), 2U);
    EXPECT_EQ(session.dock().moves(), 1U);
}

TEST(SessionPointer, PullsTheDockAsSoonAsTheSessionsDwellTimeIsOver) {
    SessionOptions options = twoDisplays();
    options.dockDwell = 1s;
    Session session(options);
    session.placePointer({1500, 890});
    session.movePointer(0, 20);
    session.advance(999ms);
    session.movePointer(0, 20);
    EXPECT_EQ(session.dock().display(), 1U);
    session.advance(1ms);
    session.movePointer(0, 20);
    EXPECT_EQ(session.dock().display(), 2U);
}

TEST(SessionPointer, DoesNotPullTheDockWhereATapKeepsEventsAway) {
    Session session(twoDisplays());
    ReceivedEvents received;
    RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event* event) { return moveTo(event, {event->location().x, 895}); });
    session.placePointer({1500, 890});
    for (int count = 0; count < 20; ++count) {
        session.movePointer(0, 20);
        session.advance(50ms);
    }
    EXPECT_EQ(session.dock().moves(), 0U);
}

TEST(SessionPointer, DoesNotPullTheDockWithEventsThatATapDeletes) {
    Session session(twoDisplays());
    ReceivedEvents received;
    RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event*) { return nullptr; });
    session.placePointer({1500, 890});
    for (int count = 0; count < 20; ++count) {
        session.movePointer(0, 20);
        session.advance(50ms);
    }
    EXPECT_EQ(session.pointer(), (Point{1500, 900 - PointerStep}));
    EXPECT_EQ(session.dock().moves(), 0U);
}

} // namespace
} // namespace kestrune::sim
