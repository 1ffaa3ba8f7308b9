#include "replay/ApplicationHost.h"

#include "replay/StoredChoices.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrune::replay {
namespace {

constexpr sim::StatusItemIndex Kestrune{0};

sim::SessionOptions options(sim::Permission permission = sim::Permission::granted) {
    sim::SessionOptions result;
    result.displays = {sim::makeDisplay(1, "One", {0, 0, 100, 100}),
                       sim::makeDisplay(2, "Two", {100, 0, 100, 100})};
    result.permission = permission;
    return result;
}

std::string storedChoice(sim::Session& session) {
    const sim::PropertyList* stored = session.defaults().find(entries::PinnedScreenUUID);
    return stored != nullptr ? stored->asString().value_or("") : "";
}

bool isStored(sim::Session& session, std::string_view key) { return session.defaults().find(key) != nullptr; }

TEST(ApplicationHost, LaunchesTheApplicationAndLetsItSettle) {
    sim::Session session(options());
    const ApplicationHost host(session);
    EXPECT_TRUE(host.isRunning());
    EXPECT_TRUE(host.guardIsRunning());
    EXPECT_FALSE(host.isWatchingAccessibility());
    EXPECT_EQ(session.statusItems().shown().size(), 1U);
    EXPECT_EQ(session.taps().count(), 1U);
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
    // What the launch left to be done is done: the permission is there, and nobody is asked to set up.
    ASSERT_TRUE(isStored(session, entries::HasCompletedOnboarding));
    EXPECT_TRUE(session.defaults().find(entries::HasCompletedOnboarding)->asBool());
}

TEST(ApplicationHost, WatchesForThePermissionThatIsMissing) {
    sim::Session session(options(sim::Permission::notListed));
    const ApplicationHost host(session);
    EXPECT_TRUE(host.isRunning());
    EXPECT_TRUE(host.isWatchingAccessibility());
    EXPECT_FALSE(host.guardIsRunning());
    EXPECT_EQ(session.accessibility().permission(), sim::Permission::switchedOff) << "it is listed now";
    session.user().setPermission(sim::Permission::granted);
    session.advance(std::chrono::seconds(1));
    EXPECT_TRUE(host.guardIsRunning());
    EXPECT_FALSE(host.isWatchingAccessibility());
}

TEST(ApplicationHost, LaunchesNothingTwice) {
    sim::Session session(options());
    ApplicationHost host(session);
    const DockGuardController* guard = host.guard();
    host.launch();
    EXPECT_EQ(host.guard(), guard);
    EXPECT_EQ(session.statusItems().shown().size(), 1U);
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST(ApplicationHost, QuitsThroughTheMenuAndLaunchesAgainWithWhatWasStored) {
    sim::Session session(options());
    ApplicationHost host(session);
    ASSERT_TRUE(host.chooseDisplay(2));
    EXPECT_TRUE(host.quit());
    EXPECT_FALSE(host.isRunning());
    EXPECT_EQ(host.guard(), nullptr);
    EXPECT_FALSE(host.guardIsRunning());
    EXPECT_FALSE(host.isWatchingAccessibility());
    EXPECT_TRUE(session.statusItems().shown().empty());
    EXPECT_EQ(session.taps().count(), 0U);
    EXPECT_EQ(session.liveObjects(), 0);

    host.launch();
    EXPECT_TRUE(host.guardIsRunning());
    EXPECT_EQ(host.guard()->pinnedScreen()->displayID, 2U);
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST(ApplicationHost, OffersNothingWhileTheProcessDoesNotRun) {
    sim::Session session(options());
    ApplicationHost host(session);
    host.quit();
    EXPECT_FALSE(host.quit());
    EXPECT_FALSE(host.chooseDisplay(2));
    EXPECT_FALSE(host.flipSwitch());
    EXPECT_FALSE(host.askForPermission());
    EXPECT_EQ(storedChoice(session), "");
    EXPECT_FALSE(isStored(session, entries::IsEnabled));
}

TEST(ApplicationHost, ChoosesDisplaysWithoutANewTap) {
    sim::Session session(options());
    ApplicationHost host(session);
    EXPECT_TRUE(host.chooseDisplay(2));
    EXPECT_EQ(storedChoice(session), sim::uuidOfDisplay(2));
    EXPECT_EQ(host.guard()->pinnedScreen()->displayID, 2U);
    EXPECT_EQ(session.taps().count(), 1U);
    EXPECT_TRUE(host.chooseDisplay(2)) << "the marked row can be chosen again";
    EXPECT_TRUE(host.chooseDisplay(1));
    EXPECT_EQ(storedChoice(session), sim::uuidOfDisplay(1));
    EXPECT_FALSE(host.chooseDisplay(3));
    EXPECT_EQ(storedChoice(session), sim::uuidOfDisplay(1));
    EXPECT_FALSE(session.menus().place()) << "no menu stays open behind it";
}

TEST(ApplicationHost, TellsTwinsApart) {
    sim::SessionOptions twins = options();
    twins.displays[1].localizedName = twins.displays[0].localizedName;
    sim::Session session(twins);
    ApplicationHost host(session);
    EXPECT_TRUE(host.chooseDisplay(2));
    EXPECT_EQ(storedChoice(session), sim::uuidOfDisplay(2));
    EXPECT_TRUE(host.chooseDisplay(1));
    EXPECT_EQ(storedChoice(session), sim::uuidOfDisplay(1));
}

TEST(ApplicationHost, MistakesNoDisplayForARowOfTheMenu) {
    sim::SessionOptions likeRows = options();
    likeRows.displays[0].localizedName = "Quit";
    likeRows.displays[1].localizedName = "Disable";
    sim::Session session(likeRows);
    ApplicationHost host(session);
    EXPECT_TRUE(host.flipSwitch());
    EXPECT_TRUE(host.isRunning());
    EXPECT_FALSE(session.defaults().find(entries::IsEnabled)->asBool());
    EXPECT_TRUE(host.quit());
    EXPECT_FALSE(host.isRunning());
}

TEST(ApplicationHost, FlipsTheSwitch) {
    sim::Session session(options());
    ApplicationHost host(session);
    EXPECT_TRUE(host.flipSwitch());
    EXPECT_FALSE(host.guardIsRunning());
    EXPECT_FALSE(session.defaults().find(entries::IsEnabled)->asBool());
    EXPECT_TRUE(host.flipSwitch());
    EXPECT_TRUE(host.guardIsRunning());
    EXPECT_TRUE(session.defaults().find(entries::IsEnabled)->asBool());
}

TEST(ApplicationHost, CanNeitherChooseNorFlipBeforeTheSetupIsComplete) {
    sim::Session session(options(sim::Permission::switchedOff));
    ApplicationHost host(session);
    EXPECT_FALSE(host.chooseDisplay(2));
    EXPECT_FALSE(host.flipSwitch());
    EXPECT_EQ(storedChoice(session), "");
    EXPECT_FALSE(isStored(session, entries::IsEnabled));
    EXPECT_FALSE(session.menus().place());
    EXPECT_TRUE(host.quit()) << "the menu offers to quit all the same";
}

TEST(ApplicationHost, LosesTheChoicesWithThePermission) {
    sim::Session session(options());
    ApplicationHost host(session);
    EXPECT_TRUE(host.flipSwitch());
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_FALSE(host.flipSwitch());
    EXPECT_FALSE(host.chooseDisplay(2));
    session.user().setPermission(sim::Permission::granted);
    EXPECT_TRUE(host.flipSwitch());
    EXPECT_TRUE(host.chooseDisplay(2));
}

TEST(ApplicationHost, AsksForThePermissionWithDialogAndPane) {
    sim::Session session(options(sim::Permission::notListed));
    ApplicationHost host(session);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    EXPECT_TRUE(host.askForPermission());
    EXPECT_TRUE(session.accessibility().isDialogShown());
    EXPECT_TRUE(session.accessibility().isPaneShown());
}

TEST(ApplicationHost, NoticesThatTheProcessHasEnded) {
    sim::Session session(options());
    ApplicationHost host(session);
    host.noticeEnd();
    EXPECT_TRUE(host.isRunning());
    // The user chooses the menu's last row.
    ASSERT_TRUE(session.user().openMenu(Kestrune));
    ASSERT_TRUE(session.user().chooseRow(session.menus().rows().size() - 1));
    host.noticeEnd();
    EXPECT_FALSE(host.isRunning());
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST(ApplicationHost, FollowsTheDisplays) {
    sim::Session session(options());
    const ApplicationHost host(session);
    session.changeDisplays({sim::makeDisplay(3, "Three", {0, 0, 100, 100})});
    EXPECT_EQ(host.guard()->pinnedScreen()->displayID, 3U);
}

TEST(ApplicationHost, EndsTheProcessWhenItGoes) {
    sim::Session session(options());
    {
        const ApplicationHost host(session);
        EXPECT_EQ(session.taps().count(), 1U);
    }
    EXPECT_EQ(session.taps().count(), 0U);
    EXPECT_TRUE(session.statusItems().shown().empty());
    EXPECT_EQ(session.liveObjects(), 0);
}

} // namespace
} // namespace kestrune::replay
