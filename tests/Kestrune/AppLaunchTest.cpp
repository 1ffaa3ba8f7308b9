#include "Kestrune/AccessibilityList.h"
#include "tests/Kestrune/AppFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

const Calls EntryPoint = {"-[NSBundle bundleIdentifier]",
                          "os_log_create(org.kestrune.Kestrune, app)",
                          "NSApplication.sharedApplication",
                          "NSUserDefaults.standardUserDefaults",
                          "-[KestruneApp init]",
                          "-[NSApplication setDelegate:] KestruneApp",
                          "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyAccessory",
                          "-[NSApplication run]",
                          "-[KestruneApp applicationDidFinishLaunching:]"};

const Calls SettingTheMainMenu = {"NSApp", "-[NSApplication setMainMenu:] 2 items"};

const Calls StartingTheUpdater = {
    "-[UpdaterManager init]",
    "-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, UpdaterManager",
    "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, main bundle, "
    "UpdaterManager",
    "-[SPUUpdater startUpdater:]",
    "-[SPUUpdater setAutomaticallyDownloadsUpdates:] false",
    "-[NSBundle infoDictionary][SUFeedURL]",
    "-[NSBundle bundleIdentifier]",
    "os_log_create(org.kestrune.Kestrune, updater)",
    "os_log_info(updater, Sparkle initialized — feed: NOT SET)"};

const Calls ConfiguringTheStatusItem = {
    "NSStatusBar.systemStatusBar",
    "-[NSStatusBar statusItemWithLength:] -1",
    "-[MenuBarController init]",
    "-[NSStatusItem button]",
    "+[NSImage imageNamed:] MenuBarIcon",
    "-[NSImage setTemplate:] true",
    "-[NSImage setSize:] 20 x 20",
    "-[NSStatusBarButton setImage:] MenuBarIcon",
    "-[NSStatusBarButton setImageScaling:] 0",
    "-[NSStatusBarButton setToolTip:] Kestrune — Pin the Dock to one screen"};

const Calls SchedulingAndObserving = {"Task on the main actor", "NSNotificationCenter.defaultCenter",
                                      "NSOperationQueue.mainQueue",
                                      "-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] "
                                      "NSApplicationDidChangeScreenParametersNotification, nil, main queue"};

using AppLaunch = AppFixture;
using AppLaunchWithoutPermission = AppWithoutPermission;

TEST_F(AppLaunch, WithThePermissionGoesInOrder) {
    launch();
    const Calls rebuilding = rebuildOutline({.trusted = true, .items = 10});
    EXPECT_THAT(outlineOfCalls(), ElementsAreArray(inOrder({EntryPoint,
                                                            SettingTheMainMenu,
                                                            StartingTheUpdater,
                                                            ConfiguringTheStatusItem,
                                                            rebuilding,
                                                            {ReadingTheSwitch, Trusted, ReadingThePin},
                                                            StartingTheTap,
                                                            rebuilding,
                                                            {Trusted},
                                                            SchedulingAndObserving})));
    EXPECT_TRUE(guard->isRunning());
    EXPECT_FALSE(app->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 0U);
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
}

TEST_F(AppLaunchWithoutPermission, GoesInOrder) {
    launch();
    const Calls rebuilding = rebuildOutline({.trusted = false, .items = 10});
    EXPECT_THAT(outlineOfCalls(), ElementsAreArray(inOrder(
                                      {EntryPoint,
                                       SettingTheMainMenu,
                                       StartingTheUpdater,
                                       ConfiguringTheStatusItem,
                                       rebuilding,
                                       {ReadingTheSwitch, NotTrusted},
                                       rebuilding,
                                       {NotTrusted,
                                        "CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, "
                                        "kCGEventTapOptionDefault, 0x00000020)",
                                        "+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] 1, true"},
                                       SchedulingAndObserving})));
    EXPECT_FALSE(guard->isRunning());
    EXPECT_TRUE(app->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 1U);
    EXPECT_TRUE(session.accessibility().isListed());
    EXPECT_THAT(messagesButTheUpdaters(session), IsEmpty());
}

TEST_F(AppLaunch, OfAGuardThatIsSwitchedOffGoesInOrder) {
    store("isEnabled", sim::PropertyList{false});
    launch();
    const std::string readingTheValue = "-[NSUserDefaults boolForKey:] isEnabled";
    const Calls rebuilding = {Trusted,         "-[NSUserDefaults boolForKey:] hasCompletedOnboarding",
                              ReadingThePin,   ReadingTheSwitch,
                              readingTheValue, "-[NSStatusItem setMenu:] 10 items"};
    EXPECT_THAT(outlineOfCalls(), ElementsAreArray(inOrder({EntryPoint,
                                                            SettingTheMainMenu,
                                                            StartingTheUpdater,
                                                            ConfiguringTheStatusItem,
                                                            rebuilding,
                                                            {ReadingTheSwitch, readingTheValue},
                                                            rebuilding,
                                                            {Trusted},
                                                            SchedulingAndObserving})));
}

TEST_F(AppLaunch, StartsNothingBeforeItHasFinishedLaunching) {
    const auto delegate = KestruneApp::make();
    EXPECT_THAT(session.journal().take(),
                ElementsAre("NSUserDefaults.standardUserDefaults", "-[KestruneApp init]"));
    EXPECT_EQ(delegate->menuBarController(), nullptr);
    EXPECT_FALSE(delegate->dockGuard()->isRunning());
    EXPECT_THAT(delegate->dockGuard()->screensCache(), IsEmpty());
    EXPECT_FALSE(delegate->dockGuard()->pinnedScreen());
    EXPECT_FALSE(delegate->isWatchingAccessibility());
}

TEST_F(AppLaunch, HandsThePreferencesToTheGuard) {
    store("pinnedScreenUUID", sim::PropertyList{sim::uuidOfDisplay(2)});
    launch();
    EXPECT_EQ(guard->pinnedScreen()->uuid, sim::uuidOfDisplay(2));
    EXPECT_EQ(session.post(EventType::mouseMoved, {100, 1079}).delivered, (Point{100, 1075}));
    store("isEnabled", sim::PropertyList{false});
    EXPECT_EQ(session.post(EventType::mouseMoved, {100, 1079}).delivered, (Point{100, 1079}));
}

TEST_F(AppLaunch, LeavesAGuardOffThatTheUserSwitchedOff) {
    store("isEnabled", sim::PropertyList{false});
    launchAndSettle();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_FALSE(app->isWatchingAccessibility());
    EXPECT_TRUE(stored("hasCompletedOnboarding")->asBool());
    app->menuBarController()->rebuildMenu();
    EXPECT_EQ(openedMenu(session)[4], "Enable");
}

TEST_F(AppLaunch, MarksAUserWithThePermissionAsOnboardedAfterTheLaunch) {
    launch();
    EXPECT_EQ(stored("hasCompletedOnboarding"), nullptr);
    session.journal().take();
    session.advance(sim::Duration::zero());
    EXPECT_THAT(
        session.journal().take(),
        ElementsAre(Trusted, "-[NSUserDefaults setBool:forKey:] hasCompletedOnboarding = true",
                    "NSBundle.mainBundle", "-[NSBundle bundleIdentifier]",
                    "os_log_create(org.kestrune.Kestrune, app)",
                    "os_log_debug(app, scheduleWelcomeDecision: skipping wizard, already onboarded)"));
    ASSERT_THAT(messagesButTheUpdaters(session), SizeIs(1));
    EXPECT_EQ(session.logRecords().back().level, sim::LogLevel::debug);
    EXPECT_EQ(session.logRecords().back().subsystem, "org.kestrune.Kestrune");
}

TEST_F(AppLaunch, NeverReadsWhetherTheWizardWasFinishedBeforeItDecides) {
    store("hasCompletedOnboarding", sim::PropertyList{false});
    launch();
    session.journal().take();
    session.advance(sim::Duration::zero());
    EXPECT_EQ(session.journal().lines()[1],
              "-[NSUserDefaults setBool:forKey:] hasCompletedOnboarding = true");
}

TEST_F(AppLaunchWithoutPermission, LeadsToTheWizardWithoutAWord) {
    store("hasCompletedOnboarding", sim::PropertyList{true});
    launch();
    session.journal().take();
    session.advance(sim::Duration::zero());
    EXPECT_EQ(session.journal().take().front(), NotTrusted);
    ASSERT_NE(app->welcomeWindowController(), nullptr);
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_THAT(messagesButTheUpdaters(session), IsEmpty());
}

TEST_F(AppLaunchWithoutPermission, ThrowsTheProbesTapAwayWhenThereIsOne) {
    // As when the permission arrives between the look at it and the probe.
    launch();
    session.journal().take();
    grant();
    registerForAccessibilityList();
    EXPECT_THAT(session.journal().take(),
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
    session.refuseTapCreation(true);
    launchAndSettle();
    EXPECT_FALSE(guard->isRunning());
    EXPECT_THAT(messagesButTheUpdaters(session),
                ElementsAre(HasSubstr("tap"), StartsWith("scheduleWelcomeDecision")));
    session.refuseTapCreation(false);
    openedMenu(session);
    EXPECT_TRUE(guard->isRunning());
}

TEST_F(AppLaunch, OpensSettingsWhenItIsOpenedAgain) {
    launchAndSettle();
    EXPECT_FALSE(session.reopenApplication());
    ASSERT_NE(app->settingsWindowController(), nullptr);
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_FALSE(session.reopenApplication());
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_EQ(app->welcomeWindowController(), nullptr);
}

TEST_F(AppLaunch, BringsSettingsOutOfTheDockWhenItIsOpenedAgain) {
    launchAndSettle();
    session.reopenApplication();
    session.windows().miniaturizeByUser(session.windows().shown().at(0));
    EXPECT_FALSE(session.reopenApplication());
    EXPECT_EQ(session.windows().shown().size(), 1U);
}

TEST_F(AppLaunchWithoutPermission, OpensTheWizardWhenItIsOpenedAgain) {
    launchAndSettle();
    session.windows().closeByUser(session.windows().shown().at(0));
    EXPECT_FALSE(session.reopenApplication());
    EXPECT_EQ(session.windows().shown().size(), 1U);
    EXPECT_EQ(app->settingsWindowController(), nullptr);
}

TEST_F(AppLaunch, StopsTheGuardAtTheEnd) {
    launchAndSettle();
    app->applicationWillTerminate();
    EXPECT_THAT(session.journal().take(), ElementsAreArray(StoppingTheTap));
    EXPECT_FALSE(guard->isRunning());
    app->applicationWillTerminate();
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(AppLaunch, EndsWithTheMenusQuit) {
    launchAndSettle();
    app->menuBarController()->rebuildMenu();
    session.journal().take();
    EXPECT_TRUE(chooseRow(session, "Quit"));
    Calls steps = outlineOfCalls();
    steps.erase(steps.begin(), std::find(steps.begin(), steps.end(), "-[MenuBarController quit]"));
    EXPECT_THAT(
        steps, ElementsAreArray(inOrder({{"-[MenuBarController quit]", "NSApp", "-[NSApplication terminate:]",
                                          "-[KestruneApp applicationWillTerminate:]"},
                                         StoppingTheTap})));
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
