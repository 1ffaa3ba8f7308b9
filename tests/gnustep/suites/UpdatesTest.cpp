// Updates on GNUstep, with the whole application through the real binding.
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/suites/SettingsFixture.h"

namespace kestrune::gnustep {
namespace {

using contract::LoggedMessage;
using contract::UpdateFramework;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class UpdatesOnGNUstep : public SettingsFixture {
protected:
    void announce() {
        world_.announceUpdate();
        world_.runMainQueue();
    }

    void finishSession() {
        world_.finishUpdateSession();
        world_.runMainQueue();
    }

    void expectMissingFramework() {
        EXPECT_THAT(logged("updater"),
                    ElementsAre(message(LoggedMessage::Level::error, "updater", "Sparkle init failed: ",
                                        "Sparkle.framework is not in the application's "
                                        "Frameworks folder.")));
    }
};

TEST_F(UpdatesOnGNUstep, StartAtLaunch) {
    launch();
    EXPECT_THAT(
        world_.updateMessages(),
        ElementsAre("-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, UpdaterManager",
                    "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, "
                    "main bundle, UpdaterManager",
                    "-[SPUUpdater startUpdater:]", "-[SPUUpdater setAutomaticallyDownloadsUpdates:] false"));
    EXPECT_EQ(world_.asksForGentleReminders(), false);
    EXPECT_THAT(logged("updater"), ElementsAre(message(LoggedMessage::Level::info, "updater",
                                                       "Sparkle initialized — feed: ", "NOT SET")));
}

TEST_F(UpdatesOnGNUstep, AreCheckedForAndTheirWindowsRaised) {
    launchAndOpen();
    world_.clickButton("Check for Updates…");
    EXPECT_EQ(world_.updateMessages().back(), "-[SPUUpdater checkForUpdates]");
    const auto status = world_.showFrameworkWindow("SPUStatusWindow", "Updating Kestrune");
    const auto update = world_.showFrameworkWindow("NSWindow", "Software Update");
    const auto other = world_.showFrameworkWindow("NSWindow", "Other");
    EXPECT_EQ(window().title, "Software Update");
    EXPECT_EQ(window().level, WindowLevel::floating);
    world_.letTimePass(SecondsForTheUpdater);
    EXPECT_EQ(levelOf("Updating Kestrune"), WindowLevel::floating);
    EXPECT_EQ(levelOf("Software Update"), WindowLevel::floating);
    EXPECT_EQ(levelOf("Other"), WindowLevel::normal);
    EXPECT_EQ(levelOf("Kestrune Settings"), WindowLevel::normal);
}

TEST_F(UpdatesOnGNUstep, MakeTheApplicationRegularWhileTheyAreShown) {
    launch();
    ASSERT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    announce();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    const auto update = world_.showFrameworkWindow("NSWindow", "Software Update");
    EXPECT_EQ(window().level, WindowLevel::floating);
    finishSession();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(UpdatesOnGNUstep, LeaveSettingsTheirDockIcon) {
    launchAndOpen();
    announce();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    finishSession();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    world_.clickCloseButton();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(UpdatesOnGNUstep, PutBackThePolicyThatTheFirstAnnouncementFound) {
    launch();
    announce();
    announce();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    finishSession();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(UpdatesOnGNUstep, ThatWereNeverAnnouncedLeaveThePolicyAloneAndAreNotObservedAnyMore) {
    launchAndOpen();
    world_.clickButton("Check for Updates…");
    world_.letTimePass(SecondsForTheUpdater);
    finishSession();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    const auto update = world_.showFrameworkWindow("NSWindow", "Software Update");
    EXPECT_TRUE(window().isKey);
    EXPECT_EQ(window().level, WindowLevel::normal);
}

TEST_F(UpdatesOnGNUstep, RaiseTheirWindowsBeforeAnAlertAndAfterIt) {
    launch();
    const auto before = world_.showFrameworkWindow("SPUStatusWindow", "Before");
    std::shared_ptr<void> after;
    world_.showUpdateAlert([&] {
        EXPECT_EQ(levelOf("Before"), WindowLevel::normal) << "that is a task for later";
        world_.runMainQueue();
        EXPECT_EQ(levelOf("Before"), WindowLevel::floating);
        EXPECT_TRUE(world_.isActive());
        after = world_.showFrameworkWindow("SPUStatusWindow", "After");
        EXPECT_EQ(levelOf("After"), WindowLevel::normal) << "nobody observes windows";
        world_.activateAnotherApplication();
    });
    world_.runMainQueue();
    EXPECT_EQ(levelOf("After"), WindowLevel::floating);
    EXPECT_TRUE(world_.isActive());
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(UpdatesOnGNUstep, KeepTheirWindowsInFrontOfAnotherApplication) {
    launchAndOpen();
    const auto early = world_.showFrameworkWindow("SPUStatusWindow", "Early", true);
    world_.clickButton("Check for Updates…", 1);
    const auto late = world_.showFrameworkWindow("NSWindow", "Software Update", true);
    const auto other = world_.showFrameworkWindow("NSWindow", "Other", true);
    world_.letTimePass(SecondsForTheUpdater);
    EXPECT_THAT(titles(), Contains("Other"));
    world_.activateAnotherApplication();
    EXPECT_THAT(titles(), AllOf(Contains("Early"), Contains("Software Update"), Not(Contains("Other"))));
}

TEST_F(UpdatesOnGNUstep, AreLeftOutWhenTheFrameworkIsMissing) {
    world_.setUpdateFramework(UpdateFramework::missing);
    launchAndOpen();
    expectMissingFramework();
    world_.clickButton("Check for Updates…");
    world_.letTimePass(SecondsForTheUpdater);
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
}

TEST_F(UpdatesOnGNUstep, AreLeftOutWhenThereIsNoPlaceForTheFramework) {
    takeAwayFrameworksFolder();
    launch();
    expectMissingFramework();
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
}

TEST_F(UpdatesOnGNUstep, SayWhyTheFrameworkWasNotLoaded) {
    refuseLoadingUpdateFramework("mapping process and mapped file have different Team IDs");
    launch();
    EXPECT_THAT(logged("updater"),
                ElementsAre(message(LoggedMessage::Level::error, "updater", "Sparkle init failed: ",
                                    "mapping process and mapped file have different "
                                    "Team IDs")));
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
}

TEST_F(UpdatesOnGNUstep, SayWhyTheyDidNotStart) {
    world_.setUpdateFramework(UpdateFramework::refusing);
    launchAndOpen();
    EXPECT_THAT(logged("updater"),
                ElementsAre(message(LoggedMessage::Level::error, "updater",
                                    "Sparkle init failed: ", "The updater failed to start.")));
    world_.clickButton("Check for Updates…");
    EXPECT_THAT(world_.updateMessages(), Not(Contains("-[SPUUpdater checkForUpdates]")));
}

} // namespace
} // namespace kestrune::gnustep
