#include "tests/desk/live/LiveFixture.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

constexpr sim::Duration Second = std::chrono::seconds(1);

TEST(LivePermission, FreezesThePointerForASecondAtEachEventWhenItIsRevoked) {
    LiveDesk desk({});
    desk.togglePermission();
    EXPECT_EQ(desk.news().text,
              "Accessibility permission revoked: the system waits a second for a tap that never answers");
    EXPECT_EQ(desk.news().kind, Occurrence::warning);

    desk.movePointerTowards({2472, 990});
    EXPECT_EQ(desk.now(), Second);
    EXPECT_EQ(
        desk.news().text,
        "The pointer stood still for a second: the tap did not answer, and the guard switched it on again");
    desk.movePointerTowards({2472, 990});
    EXPECT_EQ(desk.now(), 2 * Second);
    EXPECT_EQ(desk.report().events, 2U);
    EXPECT_EQ(desk.report().changed, 0U);
    EXPECT_EQ(desk.report().violations, 0U);
}

TEST(LivePermission, LetsTheTapAnswerAgainWhenItIsGrantedAgain) {
    LiveDesk desk({});
    desk.togglePermission();
    desk.movePointerTowards({2472, 500});
    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission granted: the tap answers again");
    push(desk, Display2Edge);
    EXPECT_EQ(desk.news().text, "Held at 977 on Display 2");
}

TEST(LivePermission, IsLookedForOnceASecondByAGuardThatDoesNotRun) {
    LiveDesk desk(unguarded());
    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission revoked: the guard cannot start");
    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, "Guard on, but it waits for the Accessibility permission");
    EXPECT_EQ(desk.news().kind, Occurrence::warning);
    desk.advance(3 * Second);
    EXPECT_FALSE(desk.host().guard().isRunning());

    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission granted: the guard looks for it once a second");
    desk.advance(Second - sim::Duration(1));
    EXPECT_FALSE(desk.host().guard().isRunning());
    desk.advance(sim::Duration(1));
    EXPECT_TRUE(desk.host().guard().isRunning());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(LivePermission, StartsNoGuardThatIsOff) {
    LiveDesk desk(unguarded());
    desk.togglePermission();
    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission granted; the guard is off");
    desk.advance(5 * Second);
    EXPECT_FALSE(desk.host().guard().isRunning());
}

TEST(LivePermission, LeavesAGuardThatTheSystemRefusesATapToTheNextSecond) {
    LiveDesk desk(unguarded());
    desk.session().refuseTapCreation(true);
    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, "Guard on: it starts within a second");
    desk.advance(2 * Second);
    EXPECT_FALSE(desk.host().guard().isRunning());
    desk.session().refuseTapCreation(false);
    desk.advance(Second);
    EXPECT_TRUE(desk.host().guard().isRunning());
}

TEST(LivePermission, SurvivesATapTimeout) {
    LiveDesk desk({});
    desk.timeOutTap();
    EXPECT_EQ(desk.news().text,
              "The system switched the tap off after a timeout; the guard switched it on again at once");
    push(desk, Display2Edge);
    EXPECT_EQ(desk.report().dockMoves, 0U);
    EXPECT_EQ(desk.report().changed, 40U);
}

TEST(LivePermission, HasNoTapToTimeOutWhenTheGuardIsOff) {
    LiveDesk desk(unguarded());
    desk.timeOutTap();
    EXPECT_EQ(desk.news().text, "There is no tap to switch off");
}

} // namespace
} // namespace kestrune::desk
