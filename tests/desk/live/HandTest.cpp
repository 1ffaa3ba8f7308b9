#include "desk/live/hand/Hand.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

using std::chrono::milliseconds;

TEST(Hand, MovesThePointerAtOnceInTheSessionsTime) {
    LiveDesk desk({});
    Hand hand(desk);
    hand.moveTo({100, 200}, EventType::mouseMoved, milliseconds(30));
    EXPECT_EQ(desk.session().pointer(), (Point{100, 200}));
    EXPECT_EQ(desk.now(), milliseconds(30));
}

TEST(Hand, LetsTimePassWithoutMoving) {
    LiveDesk desk({});
    Hand hand(desk);
    hand.letTimePass(milliseconds(700));
    EXPECT_EQ(desk.now(), milliseconds(700));
    EXPECT_EQ(desk.report().events, 0U);
}

TEST(Hand, WaitsForAnEventThatTheSystemHoldsUp) {
    LiveDesk desk({});
    Hand hand(desk);
    desk.togglePermission();
    hand.moveTo({100, 200}, EventType::mouseMoved, milliseconds(10));
    ASSERT_EQ(desk.now(), milliseconds(1010));

    hand.moveTo({300, 200}, EventType::mouseMoved, milliseconds(500));
    hand.moveTo({400, 250}, EventType::leftMouseDragged, milliseconds(1009));
    EXPECT_EQ(desk.session().pointer(), (Point{100, 200}));
    EXPECT_EQ(desk.report().events, 1U);

    hand.letTimePass(milliseconds(1010));
    EXPECT_EQ(desk.session().pointer(), (Point{400, 250}));
    EXPECT_EQ(desk.report().events, 2U);
    EXPECT_EQ(desk.now(), milliseconds(2010));
}

} // namespace
} // namespace kestrune::desk
