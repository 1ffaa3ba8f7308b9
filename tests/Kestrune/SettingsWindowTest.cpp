// The Settings window: its procedures, call by call, and what its user sees and does.
#include "Kestrune/BugReport.h"
#include "Kestrune/LaunchAtLogin.h"
#include "Kestrune/SettingsView.h"
#include "Kestrune/SettingsWindowController.h"
#include "Kestrune/UpdaterManager.h"
#include "sim/services/WindowState.h"
#include "tests/Kestrune/SettingsFixture.h"
#include "tests/Kestrune/WelcomeFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace std::chrono_literals;

const Calls Activating = {"NSApp", "-[NSApplication activateIgnoringOtherApps:] true"};

class SettingsWindow : public SettingsFixture {
protected:
    explicit SettingsWindow(sim::UpdateFramework framework = sim::UpdateFramework::working)
        : SettingsFixture(bundleOfVersion("2.1", "57"), framework) {}

    // As after the launch.
    void make() {
        manager = UpdaterManager::shared();
        controller = SettingsWindowController::make();
    }

    void makeAndShow() {
        make();
        controller->show();
        settle();
        calls();
    }

    bool press(std::string_view title) {
        const bool isPressed = pressButton(session, title);
        settle();
        return isPressed;
    }

    const ui::Scene& scene() { return sim::Windows::sceneOf(*onlyWindow(session)); }
    std::size_t observers() { return session.observers().count(WindowDidBecomeKeyNotification); }

    void flipSwitch() {
        const auto window = onlyWindow(session);
        session.user().flipSwitch(window, ui::placesOf<ui::ToggleElement>(scene()).at(0));
        settle();
    }

    bool isSwitchOn() { return ui::elementsOf<ui::ToggleElement>(scene()).at(0).isOn; }

    std::shared_ptr<UpdaterManager> manager;
    std::shared_ptr<SettingsWindowController> controller;
};

class SettingsWindowWithoutUpdater : public SettingsWindow {
protected:
    SettingsWindowWithoutUpdater() : SettingsWindow(sim::UpdateFramework::missing) {}
};

TEST_F(SettingsWindow, IsMadeInOrder) {
    const Calls making = callsOf([this] { controller = SettingsWindowController::make(); });
    EXPECT_THAT(
        making,
        ElementsAreArray(inOrder(
            {callsOf(isLaunchedAtLogin),
             {"-[NSWindow initWithContentRect:styleMask:backing:defer:] (0, 0) 420 x 360, 7, 2, false"},
             localizing("Kestrune Settings"),
             {"-[NSWindow setTitle:] Kestrune Settings", "-[NSWindow setReleasedWhenClosed:] false",
              "-[NSWindow center]", "-[SettingsWindowController initWithWindow:]",
              "-[NSHostingView initWithRootView:]"},
             callsOf([this] { SettingsView{controller->model()}.body(); }),
             {"-[NSWindow setContentView:]", "-[NSWindow setDelegate:] SettingsWindowController"}})));
    EXPECT_THAT(session.windows().shown(), IsEmpty());
    EXPECT_THAT(controller->actionMethods(), IsEmpty());
}

TEST_F(SettingsWindow, BeginsWithTheSwitchAsTheSystemHasIt) {
    for (const auto status : {AppServiceStatus::enabled, AppServiceStatus::requiresApproval,
                              AppServiceStatus::notFound, AppServiceStatus::notRegistered}) {
        session.user().setLoginItem(status);
        EXPECT_EQ(SettingsWindowController::make()->model()->launchAtLogin,
                  status == AppServiceStatus::enabled);
    }
}

TEST_F(SettingsWindow, IsShownInOrder) {
    make();
    const Calls showing = callsOf([this] { controller->show(); });
    const Calls assigning = callsOf([this] { controller->model()->launchAtLogin = false; });
    EXPECT_THAT(showing,
                ElementsAreArray(inOrder(
                    {callsOf(isLaunchedAtLogin),
                     assigning,
                     {"NSApp", "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyRegular"},
                     {"-[NSWindow makeKeyAndOrderFront:]"},
                     Activating})));
}

TEST_F(SettingsWindow, TakesTheSizeOfItsForm) {
    makeAndShow();
    const auto window = onlyWindow(session);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->contentRect().width(), 440);
    EXPECT_EQ(window->contentRect().height(), scene().size.height);
    EXPECT_FALSE(window->has(WindowStyleMask::resizable));
    EXPECT_TRUE(window->has(WindowStyleMask::miniaturizable));
    EXPECT_EQ(window->title, "Kestrune Settings");
    EXPECT_EQ(window->level, WindowLevel::normal);
}

TEST_F(SettingsWindow, IsOneWindowHoweverOftenItIsShown) {
    makeAndShow();
    const auto window = onlyWindow(session);
    const auto model = controller->model();
    session.user().setLoginItem(AppServiceStatus::enabled);
    controller->show();
    settle();
    EXPECT_EQ(onlyWindow(session), window);
    EXPECT_EQ(controller->model(), model);
    EXPECT_TRUE(isSwitchOn());
    session.user().closeWindow(window);
    session.user().setLoginItem(AppServiceStatus::requiresApproval);
    controller->show();
    settle();
    EXPECT_EQ(onlyWindow(session), window);
    EXPECT_FALSE(isSwitchOn());
}

TEST_F(SettingsWindow, ComesBackFromTheDock) {
    makeAndShow();
    const auto window = onlyWindow(session);
    session.user().miniaturizeWindow(window);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
    controller->show();
    settle();
    EXPECT_EQ(onlyWindow(session), window);
    EXPECT_EQ(session.windows().keyWindow(), window);
    EXPECT_THAT(session.windows().miniaturized(), IsEmpty());
}

TEST_F(SettingsWindow, MakesTheApplicationAnAccessoryWhenItCloses) {
    session.application().policy = ActivationPolicy::regular;
    makeAndShow();
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
    session.user().closeWindow(onlyWindow(session));
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
}

TEST_F(SettingsWindow, RegistersAndUnregistersWithItsSwitch) {
    makeAndShow();
    flipSwitch();
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::enabled);
    EXPECT_TRUE(isSwitchOn());
    flipSwitch();
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::notRegistered);
    EXPECT_FALSE(isSwitchOn());
    EXPECT_THAT(session.logRecords(), SizeIs(1)); // of the updater
}

TEST_F(SettingsWindow, LeavesTheSwitchWhereTheUserPutItUntilItIsShownAgain) {
    makeAndShow();
    session.faults().refuseLoginItem("Operation not permitted");
    flipSwitch();
    EXPECT_TRUE(isSwitchOn());
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::notRegistered);
    EXPECT_EQ(session.logRecords().back().category, "loginItem");
    const std::size_t logged = session.logRecords().size();
    controller->show();
    settle();
    EXPECT_FALSE(isSwitchOn());
    EXPECT_EQ(session.logRecords().size(), logged);
}

TEST_F(SettingsWindow, ChecksForUpdatesInOrder) {
    makeAndShow();
    const Calls observing = callsOf([this] { manager->startWindowObserver(); });
    manager->stopWindowObserver();
    session.user().switchAway(); // so that the updater's window becomes key only afterwards
    const Calls checking = callsOf([this] { controller->model()->checkForUpdates(); });
    EXPECT_THAT(checking,
                ElementsAreArray(inOrder(
                    {observing, Activating, {"-[SPUUpdater checkForUpdates]"}, {"Task on the main actor"}})));
    EXPECT_THAT(callsOf([this] { settle(); }), Contains("Task.sleep(for: 300 ms, clock: .continuous)"));
    session.user().dismissUpdater();
    settle();
    EXPECT_THAT(callsOf([this] { session.advance(299ms); }), IsEmpty());
    const Calls following = callsOf([this] { session.advance(1ms); });
    const Calls raising = callsOf([this] { manager->raiseUpdaterWindows(); });
    EXPECT_THAT(following, ElementsAreArray(inOrder({Activating, raising})));
}

TEST_F(SettingsWindow, ActivatesTheApplicationAlsoWhenTheManagerIsGoneMeanwhile) {
    makeAndShow();
    controller->model()->checkForUpdates();
    session.user().dismissUpdater();
    settle();
    manager.reset();
    session.process().objects().clear();
    session.user().switchAway();
    session.advance(300ms);
    EXPECT_TRUE(session.application().isActive);
}

TEST_F(SettingsWindow, SaysThatThereIsNoUpdateAndGoesOn) {
    makeAndShow();
    EXPECT_TRUE(press("Check for Updates…"));
    session.advance(1s);
    ASSERT_TRUE(session.updates().isShowingAlert());
    session.user().dismissUpdater();
    session.advance(1s);
    EXPECT_EQ(observers(), 0U);
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
    EXPECT_THAT(session.windows().shown(), SizeIs(1));
}

TEST_F(SettingsWindow, KeepsItsDockIconWhenAnUpdateIsPutAway) {
    session.updateSupply().feed = sim::UpdateFeed::newVersion;
    makeAndShow();
    EXPECT_TRUE(press("Check for Updates…"));
    session.advance(1s);
    ASSERT_TRUE(session.updates().isShowingUpdate());
    EXPECT_EQ(session.windows().shown().front()->title, "Software Update");
    EXPECT_EQ(session.windows().shown().front()->level, WindowLevel::floating);
    session.user().dismissUpdater();
    session.advance(1s);
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
    session.user().closeWindow(onlyWindow(session));
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
}

// The policy that the session found is put back whatever became of the window meanwhile.
TEST_F(SettingsWindow, LeavesADockIconWhenItIsClosedWhileAnUpdateIsShown) {
    session.updateSupply().feed = sim::UpdateFeed::newVersion;
    makeAndShow();
    EXPECT_TRUE(press("Check for Updates…"));
    session.advance(1s);
    session.user().closeWindow(session.windows().shown().back());
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
    session.user().dismissUpdater();
    session.advance(1s);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
    controller->show();
    settle();
    session.user().closeWindow(onlyWindow(session));
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
}

TEST_F(SettingsWindow, LosesItsDockIconWithAnUpdateThatWasThereBefore) {
    session.application().policy = ActivationPolicy::accessory;
    session.updateSupply().feed = sim::UpdateFeed::newVersion;
    make();
    session.checkForUpdatesAsScheduled();
    session.advance(1s);
    ASSERT_TRUE(session.updates().isShowingUpdate());
    controller->show();
    settle();
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
    session.user().dismissUpdater();
    session.advance(1s);
    EXPECT_NE(onlyWindow(session), nullptr);
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
}

TEST_F(SettingsWindowWithoutUpdater, ChangesNothingWhenItShouldCheckForUpdates) {
    makeAndShow();
    session.user().switchAway();
    controller->model()->checkForUpdates();
    session.advance(1s);
    EXPECT_FALSE(session.application().isActive);
    EXPECT_EQ(observers(), 0U);
    EXPECT_THAT(session.windows().shown(), SizeIs(1));
}

TEST_F(SettingsWindow, OpensTheMailOfABugReport) {
    makeAndShow();
    EXPECT_TRUE(press("Report a Bug…"));
    ASSERT_THAT(session.openedURLs(), SizeIs(1));
    EXPECT_EQ(session.openedURLs().front(), makeBugReportURL().absoluteString());
}

TEST_F(SettingsWindow, ReportsABugInOrder) {
    makeAndShow();
    const Calls reporting = callsOf([this] { controller->model()->reportBug(); });
    const std::string link = session.openedURLs().at(0);
    EXPECT_THAT(reporting, ElementsAreArray(inOrder(
                               {callsOf(makeBugReportURL),
                                {"NSWorkspace.sharedWorkspace", "-[NSWorkspace openURL:] " + link}})));
}

TEST_F(SettingsWindow, GoesOnWhenNobodyOpensTheMail) {
    makeAndShow();
    session.faults().refuseOpeningURLs(true);
    const auto policy = session.application().policy;
    const std::size_t logged = session.logRecords().size();
    EXPECT_TRUE(press("Report a Bug…"));
    EXPECT_THAT(calls(), hasCallAbout("-[NSWorkspace openURL:] mailto:"));
    EXPECT_THAT(session.openedURLs(), IsEmpty());
    EXPECT_EQ(session.logRecords().size(), logged);
    EXPECT_EQ(session.application().policy, policy);
    EXPECT_NE(onlyWindow(session), nullptr);
    flipSwitch();
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::enabled);
    EXPECT_TRUE(press("Check for Updates…"));
    session.advance(1s);
    ASSERT_TRUE(session.updates().isShowingAlert());
    session.user().dismissUpdater();
    session.faults().refuseOpeningURLs(false);
    EXPECT_TRUE(press("Report a Bug…"));
    EXPECT_THAT(session.openedURLs(), SizeIs(1));
}

TEST_F(SettingsWindow, DoesNothingOnceTheControllerIsGone) {
    make();
    const auto model = controller->model();
    controller.reset();
    model->reportBug();
    model->checkForUpdates();
    EXPECT_THAT(session.openedURLs(), IsEmpty());
    EXPECT_EQ(observers(), 0U);
}

using SettingsWindowDeathTest = SettingsWindow;

TEST_F(SettingsWindowDeathTest, CanOnlyBeMadeByItself) {
    make();
    EXPECT_DEATH(session.windows().refuseConstruction("SettingsWindowController"),
                 "Kestrune/SettingsWindowController: Fatal error: init\\(coder:\\) is not supported");
}

} // namespace
} // namespace kestrune
