#include "tests/Kestrune/AppFixture.h"

namespace kestrune {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;

using namespace std::chrono_literals;

const std::string OnMainThread = "+[NSThread isMainThread]";

class AccessibilityWatcher : public AppWithoutPermission {
protected:
    AccessibilityWatcher() { launchAndSettle(); }

    // The wizard, while it is there, goes on looking for itself.
    void expectOver() {
        EXPECT_FALSE(app->isWatchingAccessibility());
        const bool hasWizard = app->welcomeWindowController() != nullptr;
        EXPECT_EQ(session.timers().count(), hasWizard ? 1U : 0U);
        EXPECT_THAT(callsOf([this] { session.advance(1h); }), Not(Contains(OnMainThread)));
    }
};

TEST_F(AccessibilityWatcher, LooksOnceASecondForAsLongAsItTakes) {
    EXPECT_THAT(callsOf([this] { session.advance(999ms); }), IsEmpty());
    EXPECT_THAT(callsOf([this] { session.advance(1ms); }), Contains(OnMainThread).Times(1));
    const Calls looking = callsOf([this] { session.advance(24h); });
    EXPECT_THAT(looking, Contains(OnMainThread).Times(24 * 60 * 60));
    EXPECT_THAT(looking, Each(AnyOf(OnMainThread, NotTrusted)));
    EXPECT_TRUE(app->isWatchingAccessibility());
}

TEST_F(AccessibilityWatcher, StartsTheGuardAtTheFirstTickWithThePermission) {
    session.advance(500ms);
    grant();
    session.advance(499ms);
    EXPECT_FALSE(guard->isRunning());
    session.advance(1ms);
    EXPECT_TRUE(guard->isRunning());
    expectOver();
}

TEST_F(AccessibilityWatcher, EndsWithTheGrantThatTheMenuSeesInOrder) {
    grant();
    const Calls granting = callsOf([this] { app->accessibilityGranted(); });
    EXPECT_THAT(granting, ElementsAreArray(inOrder({callsOf([this] { app->preferences()->isEnabled(); }),
                                                    {Trusted},
                                                    refreshing(),
                                                    startingTheGuard(),
                                                    {"-[NSTimer invalidate]"}})));
}

TEST_F(AccessibilityWatcher, EndsWithThePermissionAlthoughTheGuardIsSwitchedOff) {
    store(entries::IsEnabled, sim::PropertyList{false});
    grant();
    session.advance(1s);
    EXPECT_FALSE(guard->isRunning());
    expectOver();
}

TEST_F(AccessibilityWatcher, EndsAlthoughTheStartFails) {
    session.faults().refuseTapCreation(true);
    grant();
    session.advance(1s);
    EXPECT_FALSE(guard->isRunning());
    EXPECT_EQ(messagesButTheUpdaters(session).size(), 1U);
    expectOver();
}

TEST_F(AccessibilityWatcher, IsForestalledByTheMenu) {
    grant();
    session.user().openMenu(sim::StatusItemIndex{0});
    EXPECT_TRUE(guard->isRunning());
    session.user().closeMenu();
    expectOver();
}

TEST_F(AccessibilityWatcher, IsForestalledByTheMenuOfAGuardThatIsSwitchedOff) {
    store(entries::IsEnabled, sim::PropertyList{false});
    grant();
    session.user().openMenu(sim::StatusItemIndex{0});
    EXPECT_FALSE(guard->isRunning());
    session.user().closeMenu();
    expectOver();
}

TEST_F(AccessibilityWatcher, IsLeftAloneAtTheEnd) {
    app->applicationWillTerminate();
    EXPECT_TRUE(app->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 2U); // with the wizard's
}

TEST_F(AccessibilityWatcher, PausesWhileTheMenuIsOpen) {
    session.user().openMenu(sim::StatusItemIndex{0});
    grant();
    session.advance(10s);
    EXPECT_FALSE(guard->isRunning());
    session.user().closeMenu();
    EXPECT_TRUE(guard->isRunning());
    expectOver();
}

TEST_F(AccessibilityWatcher, EndsWithTheWizardInOrder) {
    grant();
    const Calls finishing = callsOf([this] { app->welcomeFinished(); });
    EXPECT_TRUE(guard->isRunning());
    expectOver();
    const std::string endingTheWizards = "-[NSTimer invalidate]";
    EXPECT_THAT(finishing, ElementsAreArray(inOrder(
                               {{endingTheWizards}, startRule(), {"-[NSTimer invalidate]"}, rebuilding()})));
}

TEST_F(AccessibilityWatcher, EndsWithTheWizardAlsoWithoutThePermission) {
    app->welcomeFinished();
    EXPECT_FALSE(guard->isRunning());
    expectOver();
}

TEST_F(AccessibilityWatcher, IsNotTakenUpAgain) {
    grant();
    session.advance(1s);
    session.user().setPermission(sim::Permission::switchedOff);
    session.user().openMenu(sim::StatusItemIndex{0});
    session.user().closeMenu();
    app->welcomeFinished();
    expectOver();
}

TEST_F(AccessibilityWatcher, IsReplacedWhenTheApplicationLaunchesTwice) {
    app->applicationDidFinishLaunching();
    EXPECT_EQ(session.timers().count(), 2U); // with the wizard's
    app->welcomeFinished();
    expectOver();
}

using AccessibilityTick = AppWithoutPermission;

// Without the wizard, which has ticks of its own.
TEST_F(AccessibilityTick, ThatFindsThePermissionStartsTheGuardInOrder) {
    launch();
    grant();
    session.advance(0s);
    const Calls ticking = callsOf([this] { session.advance(1s); });
    EXPECT_THAT(ticking, ElementsAreArray(inOrder(
                             {{OnMainThread, Trusted, "-[NSTimer invalidate]"}, startRule(), rebuilding()})));
}

using AppEvents = AppFixture;

TEST_F(AppEvents, TheMenusCallbackLeavesARunningGuardAsItIs) {
    launchAndSettle();
    const Calls granting = callsOf([this] { app->accessibilityGranted(); });
    EXPECT_THAT(granting, Not(Contains(Trusted)));
    EXPECT_THAT(granting, Not(hasCallAbout("CGEventTap")));
    EXPECT_TRUE(guard->isRunning());
}

TEST_F(AppEvents, TheMenusItemsForItsWindowsCanBeChosen) {
    launchAndSettle();
    EXPECT_TRUE(chooseRow(session, "Complete setup…"));
    EXPECT_TRUE(chooseRow(session, "Settings…"));
}

TEST_F(AppEvents, ARevokedPermissionLeavesTheGuardRunning) {
    launchAndSettle();
    session.user().setPermission(sim::Permission::switchedOff);
    openedMenu(session);
    session.user().closeMenu();
    session.changeDisplays({primaryDisplay(), thirdDisplay()});
    app->welcomeFinished();
    EXPECT_TRUE(guard->isRunning());
    EXPECT_EQ(session.taps().count(), 1U);
    EXPECT_FALSE(app->isWatchingAccessibility());
}

TEST_F(AppEvents, EachRunOfTheWizardHasAControllerOfItsOwn) {
    launchAndSettle();
    const auto play = [this] {
        app->showWelcomeWindow();
        session.advance(sim::Duration::zero());
        const std::weak_ptr<WelcomeWindowController> wizard = app->welcomeWindowController();
        app->showWelcomeWindow();
        EXPECT_EQ(wizard.lock(), app->welcomeWindowController());
        EXPECT_EQ(session.windows().shown().size(), 1U);
        app->welcomeWindowController()->model()->finish();
        EXPECT_TRUE(wizard.expired());
        EXPECT_THAT(session.windows().shown(), IsEmpty());
    };
    play();
    play();
    EXPECT_EQ(app->welcomeWindowController(), nullptr);
}

TEST_F(AppEvents, TheWizardCanEndTwice) {
    launchAndSettle();
    app->welcomeFinished();
    app->welcomeFinished();
    EXPECT_TRUE(guard->isRunning());
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST_F(AppEvents, TheWizardCanEndBeforeTheLaunch) {
    const auto delegate = KestruneApp::make();
    delegate->welcomeFinished();
    EXPECT_THAT(session.statusItems().shown(), IsEmpty());
    delegate->dockGuard()->stop();
}

TEST_F(AppEvents, ChangedDisplaysAreReadAndShownInOrder) {
    launchAndSettle();
    const Calls changing = callsOf([this] {
        session.changeDisplays({primaryDisplay(), secondDisplay(), thirdDisplay()});
    });
    EXPECT_THAT(changing, ElementsAreArray(inOrder({{OnMainThread}, refreshing(), rebuilding()})));
    EXPECT_EQ(guard->screensCache().size(), 3U);
    EXPECT_TRUE(guard->isRunning());
}

TEST_F(AppEvents, ChangedDisplaysAreReadAndShownWhileTheGuardIsStopped) {
    store(entries::IsEnabled, sim::PropertyList{false});
    launchAndSettle();
    session.changeDisplays({primaryDisplay()});
    EXPECT_EQ(guard->screensCache().size(), 1U);
    EXPECT_EQ(openedMenu(session)[1], "✓  Primary  (1920×1080)  (Main)");
    EXPECT_FALSE(guard->isRunning());
}

TEST_F(AppEvents, ChangedDisplaysReachTheGuardWhileTheMenuIsOpen) {
    launchAndSettle();
    session.user().openMenu(sim::StatusItemIndex{0});
    session.changeDisplays({primaryDisplay()});
    EXPECT_EQ(guard->screensCache().size(), 1U);
    EXPECT_TRUE(session.menus().place());
}

TEST_F(AppEvents, TheMainMenusSettingsLookAtTheSetup) {
    launchAndSettle();
    app->menuOpenSettings();
    EXPECT_NE(app->settingsWindowController(), nullptr);
    EXPECT_EQ(app->welcomeWindowController(), nullptr);
    EXPECT_TRUE(app->isSetupComplete());
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_FALSE(app->isSetupComplete());
    store(entries::HasCompletedOnboarding, sim::PropertyList{false});
    EXPECT_FALSE(app->isSetupComplete());
    app->menuOpenSettings();
    EXPECT_NE(app->welcomeWindowController(), nullptr);
}

// Of its own accord; the updater's checks are its framework's.
TEST_F(AppEvents, NothingHappensForADayOnceThePermissionIsThereAndNoWindowIsOpen) {
    launchAndSettle();
    EXPECT_EQ(session.timers().count(), 0U);
    session.advance(24h);
    EXPECT_THAT(session.journal().take(), IsEmpty());
    app->openSettingsWindow();
    session.user().closeWindow(session.windows().shown().at(0));
    session.advance(0s);
    session.journal().take();
    session.advance(24h);
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(AppEvents, SettingsAreOneControllerForTheWholeProcess) {
    launchAndSettle();
    EXPECT_EQ(app->settingsWindowController(), nullptr);
    app->openSettingsWindow();
    const auto controller = app->settingsWindowController();
    const auto window = session.windows().shown().at(0);
    session.user().closeWindow(window);
    app->openSettingsWindow();
    EXPECT_EQ(app->settingsWindowController(), controller);
    EXPECT_EQ(session.windows().shown().at(0), window);
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
}

class DelegateGone : public AppWithoutPermission {
protected:
    void letGo() { app.reset(); }
};

TEST_F(DelegateGone, TheTaskDoesNothing) {
    launch();
    letGo();
    grant();
    session.advance(sim::Duration::zero());
    EXPECT_EQ(stored(entries::HasCompletedOnboarding), nullptr);
}

TEST_F(DelegateGone, TheTimerEndsItself) {
    launchAndSettle();
    letGo();
    EXPECT_EQ(session.timers().count(), 1U);
    session.advance(1s);
    EXPECT_EQ(session.timers().count(), 0U);
}

TEST_F(DelegateGone, ChangedDisplaysMeanNothing) {
    launchAndSettle();
    letGo();
    session.changeDisplays({primaryDisplay()});
    EXPECT_TRUE(guard->screensCache().empty());
}

TEST_F(DelegateGone, TheMenusCallbacksDoNothing) {
    launchAndSettle();
    const std::shared_ptr<MenuBarController> menuBarController = app->menuBarController();
    letGo();
    grant();
    menuBarController->showSettings();
    menuBarController->showWelcome();
    EXPECT_THAT(session.windows().all(), IsEmpty());
    session.user().openMenu(sim::StatusItemIndex{0});
    EXPECT_FALSE(guard->isRunning());
}

TEST_F(DelegateGone, NothingOfItIsLeft) {
    launchAndSettle();
    letGo();
    guard.reset();
    session.user().endApplication();
    EXPECT_EQ(session.liveObjects(), 0);
}

using AppEventsDeathTest = AppWithoutPermission;

TEST_F(AppEventsDeathTest, TheWatcherStaysOnTheMainThread) {
    launchAndSettle();
    EXPECT_DEATH(session.faults().onAnotherThread([this] { session.advance(1s); }),
                 "Fatal error: The Accessibility watcher has left the main thread\\.");
}

TEST_F(AppEventsDeathTest, ChangesOfDisplaysArriveOnTheMainThread) {
    launchAndSettle();
    EXPECT_DEATH(session.faults().onAnotherThread([this] { session.changeDisplays({primaryDisplay()}); }),
                 "Fatal error: A change of displays was announced outside the main thread\\.");
}

} // namespace
} // namespace kestrune
