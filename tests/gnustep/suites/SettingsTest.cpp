// The Settings window, the login item and the mail on GNUstep: opened from the menu and used through the real
// binding.
#include "Kestrune/UpdaterManager.h"
#include "mac/objc/Pool.h"
#include "tests/gnustep/harness/Allocations.h"
#include "tests/gnustep/harness/Release.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/standins/system/LoginItem.h"
#include "tests/gnustep/suites/SettingsFixture.h"

#include <iterator>
#include <optional>

namespace kestrune::gnustep {
namespace {

using contract::LoggedMessage;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string Status = "-[SMAppService status]";
const std::string Register = "-[SMAppService registerAndReturnError:]";
const std::string Unregister = "-[SMAppService unregisterAndReturnError:]";

// The X server's events come when it likes, and wait in GNUstep's queue.
AllocatedObjects objectsButEvents() {
    AllocatedObjects objects = allocatedObjects();
    objects.erase("NSEvent");
    return objects;
}

class SettingsOnGNUstep : public SettingsFixture {
protected:
    void flipSwitch() {
        world_.clickSwitch(0);
        world_.runMainQueue();
    }

    void closeAndOpen() {
        world_.clickCloseButton();
        openSettings();
    }

    // What the service was asked since the last time.
    std::vector<std::string> asked() {
        std::vector<std::string> messages = world_.loginItemMessages();
        messages.erase(messages.begin(), std::next(messages.begin(), known_));
        known_ += static_cast<std::ptrdiff_t>(messages.size());
        return messages;
    }

private:
    std::ptrdiff_t known_ = 0;
};

TEST_F(SettingsOnGNUstep, OpensFromTheMenu) {
    launchAndOpen();
    ASSERT_THAT(world_.shownWindows(), SizeIs(1));
    EXPECT_EQ(window().title, "Kestrune Settings");
    EXPECT_TRUE(window().isKey);
    EXPECT_TRUE(window().hasCloseButton);
    EXPECT_FALSE(window().isResizable);
    EXPECT_EQ(window().content.width(), 440);
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    EXPECT_TRUE(world_.isActive());
}

TEST_F(SettingsOnGNUstep, HasItsControlsAndItsFooter) {
    launchAndOpen();
    EXPECT_THAT(window().switches, ElementsAre(false));
    EXPECT_THAT(window().buttons, ElementsAre("Check for Updates…", "Report a Bug…"));
    EXPECT_THAT(window().texts,
                ElementsAre("Launch at login", "Kestrune 0.1.0 (1)", "© 2026 Kestrune contributors"));
}

TEST_F(SettingsOnGNUstep, ReadsTheLoginItemAndAsksForNoChange) {
    launchAndOpen();
    EXPECT_THAT(asked(), ElementsAre(Status, Status, Status)) << "made, shown, compared";
    world_.setLoginItem(AppServiceStatus::enabled);
    closeAndOpen();
    EXPECT_THAT(asked(), ElementsAre(Status, Status));
    EXPECT_THAT(window().switches, ElementsAre(true));
}

TEST_F(SettingsOnGNUstep, RegistersTheLoginItemWithItsSwitch) {
    launchAndOpen();
    asked();
    flipSwitch();
    EXPECT_THAT(asked(), ElementsAre(Status, Register));
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::enabled);
    EXPECT_THAT(window().switches, ElementsAre(true));
    flipSwitch();
    EXPECT_THAT(asked(), ElementsAre(Status, Unregister));
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::notRegistered);
    EXPECT_THAT(window().switches, ElementsAre(false));
}

TEST_F(SettingsOnGNUstep, RegistersAgainWhatWaitsForTheUsersApproval) {
    world_.setLoginItem(AppServiceStatus::requiresApproval);
    launchAndOpen();
    EXPECT_THAT(window().switches, ElementsAre(false));
    asked();
    flipSwitch();
    EXPECT_THAT(asked(), ElementsAre(Status, Register));
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_THAT(window().switches, ElementsAre(true));
    closeAndOpen();
    EXPECT_THAT(asked(), ElementsAre(Status, Status));
    EXPECT_THAT(window().switches, ElementsAre(false));
}

TEST_F(SettingsOnGNUstep, LogsWhyTheLoginItemWasNotRegistered) {
    world_.refuseLoginItemChanges("Operation not permitted");
    launchAndOpen();
    asked();
    flipSwitch();
    EXPECT_THAT(asked(), ElementsAre(Status, Register));
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::notRegistered);
    EXPECT_THAT(window().switches, ElementsAre(true));
    EXPECT_THAT(logged("loginItem"),
                ElementsAre(message(LoggedMessage::Level::error, "loginItem",
                                    "LoginItem toggle failed: ", "Operation not permitted")));
}

TEST_F(SettingsOnGNUstep, LogsWhyTheLoginItemWasNotUnregistered) {
    world_.setLoginItem(AppServiceStatus::enabled);
    world_.refuseLoginItemChanges("No such process");
    launchAndOpen();
    asked();
    flipSwitch();
    EXPECT_THAT(asked(), ElementsAre(Status, Unregister));
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::enabled);
    EXPECT_THAT(logged("loginItem"), ElementsAre(message(LoggedMessage::Level::error, "loginItem",
                                                         "LoginItem toggle failed: ", "No such process")));
    closeAndOpen();
    EXPECT_THAT(window().switches, ElementsAre(true));
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
    EXPECT_THAT(window().switches, ElementsAre(true));
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

TEST_F(SettingsOnGNUstep, GoesOnWhenNobodyOpensTheMail) {
    launchAndOpen();
    world_.letNobodyOpenURLs();
    const auto logBefore = world_.loggedMessages();
    world_.clickButton("Report a Bug…");
    world_.runMainQueue();
    EXPECT_THAT(world_.openedURLs(), IsEmpty());
    EXPECT_EQ(world_.loggedMessages(), logBefore);
    EXPECT_THAT(titles(), ElementsAre("Kestrune Settings"));
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    flipSwitch();
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::enabled);
    world_.clickButton("Check for Updates…");
    EXPECT_EQ(world_.updateMessages().back(), "-[SPUUpdater checkForUpdates]");
}

TEST_F(SettingsOnGNUstep, IsUsedAHundredTimesWithoutKeepingAnObject) {
    launchAndOpen();
    const std::shared_ptr<UpdaterManager> updates = UpdaterManager::shared();
    const auto useOnce = [&] {
        const mac::Pool pool;
        app_->openSettingsWindow();
        world_.clickSwitch(0);
        loginItem().refusal = "Operation not permitted";
        world_.clickSwitch(0);
        loginItem().refusal.reset();
        app_->settingsWindowController()->model()->reportBug();
        updates->startWindowObserver();
        updates->raiseUpdaterWindows();
        updates->stopWindowObserver();
        world_.clickCloseButton();
        world_.runMainQueue();
        forgetEvents();
    };
    const auto use = [&](int times) {
        for (int time = 0; time < times; ++time) {
            useOnce();
        }
    };
    // To the window, which stays. What was kept for later goes meanwhile.
    const auto references = [this] {
        const mac::Pool pool;
        app_->openSettingsWindow();
        world_.letTimePass(0.5);
        return send<mac::Unsigned>(visibleWindows().at(0), "retainCount");
    };
    countAllocations();
    use(20);
    const mac::Unsigned referencesBefore = references();
    const AllocatedObjects before = objectsButEvents();
    use(100);
    EXPECT_EQ(references(), referencesBefore);
    // Older releases of GNUstep never let go of an observation.
    const std::vector<std::string> observations(release() < 32 ? 1 : 0, "GSNotificationObserver: 100 more");
    EXPECT_EQ(growth(before, objectsButEvents()), observations);
}

} // namespace
} // namespace kestrune::gnustep
