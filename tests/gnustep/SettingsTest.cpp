// The Settings window, login items, the mail and updates on GNUstep: opened from the menu and used through
// the real binding.
#include "tests/gnustep/ApplicationFixture.h"
#include "tests/gnustep/standins/Sparkle.h"

#include <gmock/gmock.h>

namespace kestrune::gnustep {
namespace {

using contract::LoggedMessage;
using contract::ShownWindow;
using contract::UpdateFramework;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr double SecondsForTheUpdater = 0.6; // twice what the application waits

class SettingsOnGNUstep : public ApplicationFixture {
protected:
    void openSettings() {
        menu(); // the next one is the one after setup
        choose("Settings…");
        world_.runMainQueue();
    }

    void launchAndOpen() {
        launch();
        openSettings();
    }

    ShownWindow settings() { return world_.shownWindows().at(0); }

    void flipSwitch() {
        world_.clickSwitch(0);
        world_.runMainQueue();
    }

    std::vector<LoggedMessage> logged(const std::string& category) const {
        std::vector<LoggedMessage> messages;
        for (const LoggedMessage& message : world_.loggedMessages()) {
            if (message.category == category) {
                messages.push_back(message);
            }
        }
        return messages;
    }

    static LoggedMessage message(LoggedMessage::Level level, const std::string& category,
                                 const std::string& text) {
        return {level, "org.kestrune.Kestrune", category, text};
    }
};

TEST_F(SettingsOnGNUstep, OpensFromTheMenu) {
    launchAndOpen();
    ASSERT_THAT(world_.shownWindows(), SizeIs(1));
    EXPECT_EQ(settings().title, "Kestrune Settings");
    EXPECT_TRUE(settings().isKey);
    EXPECT_TRUE(settings().hasCloseButton);
    EXPECT_FALSE(settings().isResizable);
    EXPECT_EQ(settings().content.width(), 440);
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    EXPECT_TRUE(world_.isActive());
}

TEST_F(SettingsOnGNUstep, HasItsControlsAndItsFooter) {
    launchAndOpen();
    EXPECT_THAT(settings().switches, ElementsAre(false));
    EXPECT_THAT(settings().buttons, ElementsAre("Check for Updates…", "Report a Bug…"));
    EXPECT_THAT(settings().texts,
                ElementsAre("Launch at login", "Kestrune 0.1.0 (1)", "© 2026 Kestrune contributors"));
}

TEST_F(SettingsOnGNUstep, RegistersTheLoginItemWithItsSwitch) {
    launchAndOpen();
    flipSwitch();
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::enabled);
    EXPECT_THAT(settings().switches, ElementsAre(true));
    flipSwitch();
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::notRegistered);
    EXPECT_THAT(settings().switches, ElementsAre(false));
}

TEST_F(SettingsOnGNUstep, LogsWhyTheLoginItemWasNotRegistered) {
    world_.refuseLoginItemChanges("Operation not permitted");
    launchAndOpen();
    flipSwitch();
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::notRegistered);
    EXPECT_THAT(settings().switches, ElementsAre(true));
    EXPECT_THAT(logged("loginItem"),
                ElementsAre(message(LoggedMessage::Level::error, "loginItem",
                                    "LoginItem toggle failed: Operation not permitted")));
}

TEST_F(SettingsOnGNUstep, IsTheSameWindowWithTheSwitchReadAnewWhenItIsOpenedAgain) {
    launchAndOpen();
    world_.clickCloseButton();
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    const std::size_t count = Application::nsApp()->windows().size();
    world_.setLoginItem(AppServiceStatus::enabled);
    openSettings();
    ASSERT_THAT(world_.shownWindows(), SizeIs(1));
    EXPECT_EQ(Application::nsApp()->windows().size(), count);
    EXPECT_THAT(settings().switches, ElementsAre(true));
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
}

// GNUstep writes slashes after the scheme, which the Mac does not.
TEST_F(SettingsOnGNUstep, OpensTheMailOfABugReport) {
    launchAndOpen();
    world_.clickButton("Report a Bug…");
    EXPECT_THAT(world_.openedURLs(),
                ElementsAre(AllOf(StartsWith("mailto:"),
                                  EndsWith("support@kestrune.org?subject=Kestrune%20bug%20report&body="
                                           "Describe%20what%20went%20wrong:%0A%0A%0A---%0AApp%20version:%20"
                                           "0.1.0%20(1)%0AmacOS:%2014.5.2%0ALocale:%20en_US_POSIX"))));
}

TEST_F(SettingsOnGNUstep, StartsTheUpdaterAtLaunch) {
    launch();
    EXPECT_THAT(
        world_.updateMessages(),
        ElementsAre("-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, UpdaterManager",
                    "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, "
                    "main bundle, UpdaterManager",
                    "-[SPUUpdater startUpdater:]", "-[SPUUpdater setAutomaticallyDownloadsUpdates:] false"));
    EXPECT_EQ(world_.asksForGentleReminders(), false);
    EXPECT_THAT(logged("updater"), ElementsAre(message(LoggedMessage::Level::info, "updater",
                                                       "Sparkle initialized — feed: NOT SET")));
}

TEST_F(SettingsOnGNUstep, ChecksForUpdatesAndRaisesTheirWindows) {
    launchAndOpen();
    world_.clickButton("Check for Updates…");
    EXPECT_EQ(world_.updateMessages().back(), "-[SPUUpdater checkForUpdates]");
    const auto status = world_.showFrameworkWindow("SPUStatusWindow", "Updating Kestrune");
    const auto update = world_.showFrameworkWindow("NSWindow", "Software Update");
    const auto other = world_.showFrameworkWindow("NSWindow", "Other");
    EXPECT_EQ(settings().title, "Software Update");
    EXPECT_EQ(settings().level, WindowLevel::floating);
    world_.letTimePass(SecondsForTheUpdater);
    for (const ShownWindow& window : world_.shownWindows()) {
        const bool isUpdaters = window.title.find("Updat") != std::string::npos;
        EXPECT_EQ(window.level, isUpdaters ? WindowLevel::floating : WindowLevel::normal) << window.title;
    }
}

TEST_F(SettingsOnGNUstep, IsRegularWhileAnUpdateIsShown) {
    launch();
    ASSERT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    world_.announceUpdate();
    world_.runMainQueue();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    const auto update = world_.showFrameworkWindow("NSWindow", "Software Update");
    EXPECT_EQ(settings().level, WindowLevel::floating);
    world_.finishUpdateSession();
    world_.runMainQueue();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(SettingsOnGNUstep, DoesWithoutAnUpdaterWhenTheFrameworkIsMissing) {
    world_.setUpdateFramework(UpdateFramework::missing);
    launchAndOpen();
    EXPECT_THAT(logged("updater"),
                ElementsAre(message(LoggedMessage::Level::error, "updater",
                                    "Sparkle init failed: Sparkle.framework is not in the application's "
                                    "Frameworks folder.")));
    world_.clickButton("Check for Updates…");
    world_.letTimePass(SecondsForTheUpdater);
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
}

TEST_F(SettingsOnGNUstep, LogsWhyTheFrameworkWasNotLoaded) {
    refuseLoadingUpdateFramework("mapping process and mapped file have different Team IDs");
    launch();
    EXPECT_THAT(logged("updater"),
                ElementsAre(message(LoggedMessage::Level::error, "updater",
                                    "Sparkle init failed: mapping process and mapped file have different "
                                    "Team IDs")));
    EXPECT_THAT(world_.updateMessages(), IsEmpty());
}

TEST_F(SettingsOnGNUstep, LogsWhyTheUpdaterDidNotStart) {
    world_.setUpdateFramework(UpdateFramework::refusing);
    launchAndOpen();
    EXPECT_THAT(logged("updater"), ElementsAre(message(LoggedMessage::Level::error, "updater",
                                                       "Sparkle init failed: The updater failed to start.")));
    world_.clickButton("Check for Updates…");
    EXPECT_THAT(world_.updateMessages(), Not(Contains("-[SPUUpdater checkForUpdates]")));
}

} // namespace
} // namespace kestrune::gnustep
