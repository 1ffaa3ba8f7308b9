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

LiveDeskSetup withoutPermission() {
    LiveDeskSetup setup;
    setup.permission = sim::Permission::notListed;
    return setup;
}

TEST(LivePermission, IsLookedForOnceASecondAfterALaunchWithoutIt) {
    LiveDesk desk(withoutPermission());
    EXPECT_EQ(desk.news().text, "Kestrune has started and waits for the Accessibility permission");
    EXPECT_EQ(desk.news().kind, Occurrence::warning);
    desk.advance(3 * Second);
    EXPECT_FALSE(desk.host().guardIsRunning());

    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission granted: Kestrune looks for it once a second");
    desk.advance(Second - sim::Duration(1));
    EXPECT_FALSE(desk.host().guardIsRunning());
    desk.advance(sim::Duration(1));
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_FALSE(desk.host().isWatchingAccessibility());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(LivePermission, IsNoticedAtOnceWhenTheMenuOpens) {
    LiveDesk desk(withoutPermission());
    desk.togglePermission();
    desk.openStatusMenu();
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_FALSE(desk.host().isWatchingAccessibility());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(LivePermission, IsNotLookedForWhileTheMenuIsOpen) {
    LiveDesk desk(withoutPermission());
    desk.openStatusMenu();
    desk.togglePermission();
    desk.advance(3 * Second);
    EXPECT_FALSE(desk.host().guardIsRunning());
    desk.navigate(NavigationKey::escape);
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(LivePermission, IsOnlyNoticedByTheMenuOnceItWasThere) {
    LiveDesk desk(unguarded());
    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission revoked: the guard cannot start");
    // The menu offers no switch now, but another process can turn it.
    desk.session().defaults().set("isEnabled", sim::PropertyList{true});
    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission granted: Kestrune notices when its menu opens");
    desk.advance(5 * Second);
    EXPECT_FALSE(desk.host().guardIsRunning());
    desk.openStatusMenu();
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(LivePermission, IsNeededForTheSwitchAndTheDisplaysOfTheMenu) {
    LiveDesk desk(withoutPermission());
    const std::string refusal = "Kestrune's menu does not offer that before its setup is complete";
    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, refusal);
    EXPECT_EQ(desk.news().kind, Occurrence::warning);
    EXPECT_EQ(storedText(desk, "isEnabled"), "");
    desk.announce({});
    desk.pin(2);
    EXPECT_EQ(desk.news().text, refusal);
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), "");
}

TEST(LivePermission, StartsNoGuardThatIsOff) {
    LiveDesk desk(unguarded());
    desk.togglePermission();
    desk.togglePermission();
    EXPECT_EQ(desk.news().text, "Accessibility permission granted; the guard is off");
    desk.advance(5 * Second);
    desk.openStatusMenu();
    EXPECT_FALSE(desk.host().guardIsRunning());
}

TEST(LivePermission, IsAskedForByDialogAndPane) {
    LiveDesk desk(withoutPermission());
    desk.askForPermission();
    EXPECT_EQ(desk.news().text, "Kestrune asks for the Accessibility permission");
    EXPECT_TRUE(desk.session().accessibility().isDialogShown());
    EXPECT_TRUE(desk.session().accessibility().isPaneShown());
    desk.quitOrLaunch();
    desk.askForPermission();
    EXPECT_EQ(desk.news().text, "Kestrune does not run");
}

TEST(LivePermission, IsNotAskedForWhenItIsThere) {
    LiveDesk desk({});
    desk.askForPermission();
    EXPECT_EQ(desk.news().text, "The system does not ask: Kestrune counts as trusted already");
    EXPECT_FALSE(desk.session().accessibility().isDialogShown());
    EXPECT_TRUE(desk.session().accessibility().isPaneShown());
}

TEST(LivePermission, GivesNoTapThatTheSystemRefuses) {
    LiveDesk desk(unguarded());
    desk.session().faults().refuseTapCreation(true);
    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, "Guard on, but the system gave it no event tap");
    EXPECT_EQ(desk.news().kind, Occurrence::warning);
    desk.session().faults().refuseTapCreation(false);
    desk.advance(3 * Second);
    EXPECT_FALSE(desk.host().guardIsRunning()) << "nobody tries again by the clock";
    desk.openStatusMenu();
    EXPECT_TRUE(desk.host().guardIsRunning());
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
