#include "Kestrune/AccessibilityList.h"
#include "Kestrune/MainMenu.h"
#include "Kestrune/UpdaterManager.h"
#include "tests/Kestrune/AppFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

const Calls EntryPoint =
    inOrder({openingLog("app"),
             {"NSApplication.sharedApplication", "NSUserDefaults.standardUserDefaults", "-[KestruneApp init]",
              "-[NSApplication setDelegate:] KestruneApp",
              "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyAccessory",
              "-[NSApplication run]", "-[KestruneApp applicationDidFinishLaunching:]"}});

const Calls SchedulingAndObserving = {"Task on the main actor", "NSNotificationCenter.defaultCenter",
                                      "NSOperationQueue.mainQueue",
                                      "-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] "
                                      "NSApplicationDidChangeScreenParametersNotification, nil, main queue"};

using AppLaunch = AppFixture;
using AppLaunchWithoutPermission = AppWithoutPermission;

TEST_F(AppLaunch, GoesInOrder) {
    launch();
    const Calls launching = session.journal().take();
    const Calls buildingTheMenu = rebuilding();
    const Calls makingTheMainMenu = callsOf([this] { buildMainMenu(app, Selector("menuOpenSettings")); });
    session.process().objects().clear();
    const Calls startingTheUpdater = callsOf(UpdaterManager::shared);
    std::shared_ptr<MenuBarController> another;
    const Calls makingTheMenuBar =
        callsOf([&] { another = MenuBarController::make(app->preferences(), guard, {}); });
    EXPECT_EQ(asText(launching), asText(inOrder({EntryPoint,
                                                 makingTheMainMenu,
                                                 {"NSApp", "-[NSApplication setMainMenu:] 2 items"},
                                                 startingTheUpdater,
                                                 makingTheMenuBar,
                                                 startRule(),
                                                 buildingTheMenu,
                                                 {Trusted},
                                                 SchedulingAndObserving})));
}

TEST_F(AppLaunch, StartsTheGuardAndWatchesForNothing) {
    launch();
    EXPECT_TRUE(guard->isRunning());
    EXPECT_FALSE(app->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 0U);
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
}

TEST_F(AppLaunchWithoutPermission, ProbesAndThenWatchesInOrder) {
    launch();
    const Calls launching = session.journal().take();
    const Calls probing = callsOf(registerForAccessibilityList);
    const Calls watching = {"+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] 1, true"};
    EXPECT_THAT(asText(launching), HasSubstr(asText(inOrder({probing, watching}))));
}

TEST_F(AppLaunchWithoutPermission, WatchesForItWithoutAWord) {
    launch();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_TRUE(app->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 1U);
    EXPECT_EQ(session.taps().count(), 0U);
    EXPECT_TRUE(session.accessibility().isListed());
    EXPECT_FALSE(session.accessibility().isDialogShown());
    EXPECT_THAT(messagesButTheUpdaters(session), IsEmpty());
}

TEST_F(AppLaunch, StartsNothingBeforeItHasFinishedLaunching) {
    const auto delegate = KestruneApp::make();
    EXPECT_EQ(delegate->menuBarController(), nullptr);
    EXPECT_THAT(session.statusItems().shown(), IsEmpty());
    EXPECT_THAT(session.logRecords(), IsEmpty());
    EXPECT_FALSE(delegate->dockGuard()->isRunning());
    EXPECT_THAT(delegate->dockGuard()->screensCache(), IsEmpty());
    EXPECT_FALSE(delegate->dockGuard()->pinnedScreen());
    EXPECT_FALSE(delegate->isWatchingAccessibility());
}

TEST_F(AppLaunch, HandsThePreferencesToTheGuard) {
    store(entries::PinnedScreenUUID, sim::PropertyList{sim::uuidOfDisplay(2)});
    launch();
    EXPECT_EQ(guard->pinnedScreen()->uuid, sim::uuidOfDisplay(2));
    EXPECT_EQ(session.post(EventType::mouseMoved, {100, 1079}).delivered, (Point{100, 1075}));
    store(entries::IsEnabled, sim::PropertyList{false});
    EXPECT_EQ(session.post(EventType::mouseMoved, {100, 1079}).delivered, (Point{100, 1079}));
}

TEST_F(AppLaunch, LeavesAGuardOffThatTheUserSwitchedOff) {
    store(entries::IsEnabled, sim::PropertyList{false});
    launchAndSettle();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_FALSE(app->isWatchingAccessibility());
    EXPECT_TRUE(stored(entries::HasCompletedOnboarding)->asBool());
    app->menuBarController()->rebuildMenu();
    EXPECT_EQ(openedMenu(session)[4], "Enable");
}

TEST_F(AppLaunch, MarksAUserWithThePermissionAsOnboardedAfterTheLaunchInOrder) {
    launch();
    EXPECT_EQ(stored(entries::HasCompletedOnboarding), nullptr);
    EXPECT_THAT(
        callsOf([this] { session.advance(sim::Duration::zero()); }),
        ElementsAre(Trusted, "-[NSUserDefaults setBool:forKey:] hasCompletedOnboarding = true",
                    "NSBundle.mainBundle", "-[NSBundle bundleIdentifier]",
                    "os_log_create(org.kestrune.Kestrune, app)",
                    "os_log_debug(app, scheduleWelcomeDecision: skipping wizard, already onboarded)"));
    ASSERT_THAT(messagesButTheUpdaters(session), SizeIs(1));
    EXPECT_EQ(session.logRecords().back().level, sim::LogLevel::debug);
    EXPECT_EQ(session.logRecords().back().subsystem, "org.kestrune.Kestrune");
}

TEST_F(AppLaunch, NeverReadsWhetherTheWizardWasFinishedBeforeItDecides) {
    store(entries::HasCompletedOnboarding, sim::PropertyList{false});
    launch();
    EXPECT_THAT(callsOf([this] { session.advance(sim::Duration::zero()); }),
                Not(Contains("-[NSUserDefaults boolForKey:] hasCompletedOnboarding")));
    EXPECT_TRUE(stored(entries::HasCompletedOnboarding)->asBool());
}

TEST_F(AppLaunchWithoutPermission, LeadsToTheWizardWithoutAWord) {
    store(entries::HasCompletedOnboarding, sim::PropertyList{true});
    launchAndSettle();
    ASSERT_NE(app->welcomeWindowController(), nullptr);
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_THAT(messagesButTheUpdaters(session), IsEmpty());
}

TEST_F(AppLaunchWithoutPermission, ThrowsTheProbesTapAwayInOrderWhenThereIsOne) {
    // As when the permission arrives between the look at it and the probe.
    launch();
    grant();
    EXPECT_THAT(callsOf(registerForAccessibilityList),
                ElementsAre("CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, "
                            "kCGEventTapOptionDefault, 0x00000020)",
                            "CGEventTapEnable(tap, false)", "CFRelease(tap)"));
    EXPECT_EQ(session.taps().count(), 0U);
}

TEST_F(AppLaunch, ProbesWithATapThatChangesNothing) {
    std::optional<sim::Tap> probe;
    session.taps().onAdd([&](const sim::Tap& tap) { probe = tap; });
    registerForAccessibilityList();
    ASSERT_TRUE(probe);
    EXPECT_EQ(probe->userInfo, nullptr);
    sim::PointerEvent event(EventType::mouseMoved, {2000, 1079});
    EXPECT_EQ(probe->callback(nullptr, EventType::mouseMoved, &event, nullptr), &event);
    EXPECT_EQ(event.location, (Point{2000, 1079}));
}

TEST_F(AppLaunch, LogsAFailedStartOnceAndGoesOn) {
    session.faults().refuseTapCreation(true);
    launchAndSettle();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_THAT(messagesButTheUpdaters(session),
                ElementsAre(HasSubstr("tap"), StartsWith("scheduleWelcomeDecision")));
    session.faults().refuseTapCreation(false);
    openedMenu(session);
    EXPECT_TRUE(guard->isRunning());
}

TEST_F(AppLaunch, OpensSettingsWhenItIsOpenedAgain) {
    launchAndSettle();
    EXPECT_FALSE(session.user().reopenApplication());
    ASSERT_NE(app->settingsWindowController(), nullptr);
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_FALSE(session.user().reopenApplication());
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_EQ(app->welcomeWindowController(), nullptr);
}

TEST_F(AppLaunch, BringsSettingsOutOfTheDockWhenItIsOpenedAgain) {
    launchAndSettle();
    session.user().reopenApplication();
    session.user().miniaturizeWindow(session.windows().shown().at(0));
    EXPECT_FALSE(session.user().reopenApplication());
    EXPECT_EQ(session.windows().shown().size(), 1U);
}

TEST_F(AppLaunchWithoutPermission, OpensTheWizardWhenItIsOpenedAgain) {
    launchAndSettle();
    session.user().closeWindow(session.windows().shown().at(0));
    EXPECT_FALSE(session.user().reopenApplication());
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_EQ(app->settingsWindowController(), nullptr);
}

TEST_F(AppLaunch, StopsTheGuardAtTheEnd) {
    launchAndSettle();
    const sim::PropertyListDictionary entries = session.defaults().entries();
    app->applicationWillTerminate();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_EQ(session.taps().count(), 0U);
    app->applicationWillTerminate();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_EQ(session.defaults().entries(), entries);
}

TEST_F(AppLaunch, EndsWithTheMenusQuitInOrder) {
    launchAndSettle();
    const Calls stopping = stoppingTheGuard();
    EXPECT_THAT(callsOf([this] { app->menuBarController()->quit(); }),
                ElementsAreArray(inOrder(
                    {{"NSApp", "-[NSApplication terminate:]", "-[KestruneApp applicationWillTerminate:]"},
                     stopping})));
}

TEST_F(AppLaunch, EndsWithTheMenusQuit) {
    launchAndSettle();
    EXPECT_TRUE(chooseRow(session, "Quit"));
    EXPECT_FALSE(guard->isRunning());
    EXPECT_FALSE(session.application().exists);
}

TEST_F(AppLaunch, TakesUpWhatWasChosenBefore) {
    launchAndSettle();
    app->menuBarController()->rebuildMenu();
    EXPECT_TRUE(chooseRow(session, "  Second  (1280×800)"));
    EXPECT_TRUE(chooseRow(session, "Disable"));
    EXPECT_TRUE(chooseRow(session, "Quit"));
    app.reset();
    launchAndSettle();
    EXPECT_FALSE(guard->isRunning());
    const auto rows = openedMenu(session);
    EXPECT_EQ(rows[2], "✓  Second  (1280×800)");
    EXPECT_EQ(rows[4], "Enable");
}

using AppLaunchDeathTest = AppFixture;

TEST_F(AppLaunchDeathTest, StopsWithoutASharedApplication) {
    const auto delegate = KestruneApp::make();
    EXPECT_DEATH(delegate->applicationDidFinishLaunching(), "Fatal error: There is no shared application\\.");
}

} // namespace
} // namespace kestrune
