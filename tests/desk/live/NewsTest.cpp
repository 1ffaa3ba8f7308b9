#include "desk/live/world/News.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

Standing running() {
    Standing standing;
    standing.applicationRuns = true;
    standing.guardRuns = true;
    standing.permission = sim::Permission::granted;
    standing.pinned = "One";
    standing.pinnedHasDock = true;
    return standing;
}

std::string textOfChange(const Standing& before, const Standing& after) {
    const auto news = newsOfChange(before, after);
    return news ? news->text : "";
}

TEST(News, TellHowTheApplicationHasStarted) {
    EXPECT_EQ(newsOfLaunch(running()).text, "Guard on: only One may have the Dock");
    Standing waiting = running();
    waiting.guardRuns = false;
    waiting.isWatching = true;
    EXPECT_EQ(newsOfLaunch(waiting).text, "Kestrune has started and waits for the Accessibility permission");
    EXPECT_EQ(newsOfLaunch(waiting).kind, Occurrence::warning);
    waiting.isEnabled = false;
    EXPECT_EQ(newsOfLaunch(waiting).text, "Guard off: the Dock goes wherever the pointer pushes it");
}

TEST(News, TellThatALaunchGotNoTapAlthoughThePermissionIsThere) {
    Standing refused = running();
    refused.guardRuns = false;
    EXPECT_EQ(newsOfLaunch(refused).text, "Guard on, but the system gave it no event tap");
    EXPECT_EQ(newsOfLaunch(refused).kind, Occurrence::warning);
}

TEST(News, TellNothingWhenNothingHasChanged) {
    EXPECT_FALSE(newsOfChange(running(), running()));
    EXPECT_FALSE(newsOfChange({}, {}));
}

TEST(News, TellThatTheApplicationHasQuitBeforeAnythingElse) {
    EXPECT_EQ(textOfChange(running(), {}), "Kestrune has quit: the Dock goes wherever the pointer pushes it");
}

TEST(News, TellWhichDisplayWasChosen) {
    Standing after = running();
    after.choice = "2";
    after.pinned = "Two";
    after.pinnedHasDock = false;
    EXPECT_EQ(textOfChange(running(), after), "Two is pinned: push into its bottom edge, and the Dock comes");
    after.pinnedHasDock = true;
    EXPECT_EQ(textOfChange(running(), after), "Two is pinned and has the Dock");
}

TEST(News, TellThatTheGuardWasSwitched) {
    Standing off = running();
    off.guardRuns = false;
    off.isEnabled = false;
    EXPECT_EQ(textOfChange(running(), off), "Guard off: the Dock goes wherever the pointer pushes it");
    EXPECT_EQ(textOfChange(off, running()), "Guard on: only One may have the Dock");
    Standing refused = running();
    refused.guardRuns = false;
    EXPECT_EQ(textOfChange(off, refused), "Guard on, but the system gave it no event tap");
    Standing alone = running();
    alone.pinned.reset();
    EXPECT_EQ(textOfChange(off, alone), "Guard on, but no display is connected");
}

TEST(News, TellWhatARevokedPermissionMeans) {
    Standing revoked = running();
    revoked.permission = sim::Permission::switchedOff;
    EXPECT_EQ(textOfChange(running(), revoked), "Accessibility permission revoked: the system waits a second "
                                                "for a tap that never answers");
    Standing stopped = running();
    stopped.guardRuns = false;
    revoked.guardRuns = false;
    EXPECT_EQ(textOfChange(stopped, revoked), "Accessibility permission revoked: the guard cannot start");
    EXPECT_EQ(newsOfChange(stopped, revoked)->kind, Occurrence::warning);
}

TEST(News, TellWhatAGrantedPermissionMeans) {
    Standing before = running();
    before.permission = sim::Permission::switchedOff;
    EXPECT_EQ(textOfChange(before, running()), "Accessibility permission granted: the tap answers again");
    Standing stopped = running();
    stopped.guardRuns = false;
    EXPECT_EQ(textOfChange(before, stopped),
              "Accessibility permission granted: Kestrune notices when its menu opens");
    stopped.isWatching = true;
    EXPECT_EQ(textOfChange(before, stopped),
              "Accessibility permission granted: Kestrune looks for it once a second");
    stopped.isEnabled = false;
    EXPECT_EQ(textOfChange(before, stopped), "Accessibility permission granted; the guard is off");
}

TEST(News, TellOfAPermissionThatNobodyWaitsFor) {
    Standing before;
    Standing after;
    after.permission = sim::Permission::granted;
    EXPECT_EQ(textOfChange(before, after), "Accessibility permission granted; Kestrune does not run");
    before = after;
    after.permission = sim::Permission::switchedOff;
    EXPECT_EQ(textOfChange(before, after), "Accessibility permission revoked; Kestrune does not run");
}

TEST(News, TellThatARowWasRemovedThatWasOffAlready) {
    Standing before = running();
    before.guardRuns = false;
    before.permission = sim::Permission::switchedOff;
    Standing after = before;
    after.permission = sim::Permission::notListed;
    EXPECT_EQ(textOfChange(before, after), "Kestrune is no longer in the Accessibility list");
}

TEST(News, TellHowTheLoginItemStands) {
    Standing after = running();
    after.loginItem = AppServiceStatus::enabled;
    EXPECT_EQ(textOfChange(running(), after), "Kestrune will open when the user logs in");
    EXPECT_EQ(textOfChange(after, running()), "Kestrune will not open when the user logs in");
    after.loginItem = AppServiceStatus::notFound;
    EXPECT_EQ(textOfChange(running(), after), "Kestrune will not open when the user logs in");
    after.loginItem = AppServiceStatus::requiresApproval;
    EXPECT_EQ(textOfChange(running(), after),
              "Kestrune may not open at login until System Settings allows it");
    EXPECT_EQ(newsOfChange(running(), after)->kind, Occurrence::warning);
}

TEST(News, TellOfAMailBeforeTheWindows) {
    Standing before = running();
    before.windows = {"Kestrune Settings"};
    Standing after = before;
    after.mails = 1;
    after.windows.clear();
    EXPECT_EQ(textOfChange(before, after), "Mail shows the mail that Kestrune composed; nothing is sent");
}

TEST(News, LeaveTheOpeningOfAnAlertToWhatItSays) {
    Standing alert = running();
    alert.windows = {""};
    EXPECT_FALSE(newsOfChange(running(), alert));
    EXPECT_EQ(textOfChange(alert, running()), "The alert is closed");
}

TEST(News, TellWhyARowHadNoEffect) {
    EXPECT_EQ(newsOfChoiceWithoutEffect("Settings…", {}).text, "“Settings…” changed nothing");
    Standing withWindow;
    withWindow.windows = {"Welcome to Kestrune"};
    EXPECT_EQ(newsOfChoiceWithoutEffect("Complete setup…", withWindow).text,
              "“Complete setup…” brings “Welcome to Kestrune” to the front");
}

TEST(News, TellWhyTheMenuCannotBeUsed) {
    EXPECT_EQ(newsOfClosedMenu(running()).text,
              "Kestrune's menu does not offer that before its setup is complete");
    EXPECT_EQ(newsOfClosedMenu(running()).kind, Occurrence::warning);
    EXPECT_EQ(newsOfClosedMenu({}).text, "Kestrune does not run");
    EXPECT_EQ(newsOfClosedMenu({}).kind, Occurrence::neutral);
}

TEST(News, TellsWhichWindowHasOpenedOrClosed) {
    Standing without;
    without.applicationRuns = true;
    Standing with = without;
    with.windows = {"Welcome to Kestrune"};
    EXPECT_EQ(newsOfChange(without, with)->text, "Kestrune opened its window “Welcome to Kestrune”");
    EXPECT_EQ(newsOfChange(with, without)->text, "Kestrune's window “Welcome to Kestrune” is closed");
    Standing other = with;
    other.windows = {"Settings", "Welcome to Kestrune"};
    EXPECT_EQ(newsOfChange(with, other)->text, "Kestrune opened its window “Settings”");
    std::swap(other.windows[0], other.windows[1]);
    EXPECT_FALSE(newsOfChange(other, other));
}

TEST(News, TellsWhichControlWasPressed) {
    EXPECT_EQ(newsOfControl("Get started").text, "“Get started” was pressed in Kestrune's window");
    EXPECT_EQ(newsOfControl("Get started").kind, Occurrence::neutral);
}

} // namespace
} // namespace kestrune::desk
