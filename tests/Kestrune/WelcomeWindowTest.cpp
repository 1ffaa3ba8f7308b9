// The wizard's window: its procedures, call by call, and what its user sees and does.
#include "Kestrune/AccessibilityList.h"
#include "tests/Kestrune/WelcomeFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;
using namespace std::chrono_literals;

using Step = WelcomeViewModel::Step;
using WelcomeWindow = WelcomeFixture;
using WelcomeWindowWithoutPermission = WelcomeWithoutPermission;

TEST_F(WelcomeWindow, IsMadeInOrder) {
    EXPECT_THAT(
        callsOf([this] { make(); }),
        ElementsAreArray(inOrder(
            {{Trusted,
              "-[NSWindow initWithContentRect:styleMask:backing:defer:] (0, 0) 460 x 200, 3, 2, false"},
             localizing("Welcome to Kestrune"),
             {"-[NSWindow setTitle:] Welcome to Kestrune", "-[NSWindow setReleasedWhenClosed:] false",
              "-[NSWindow setLevel:] NSFloatingWindowLevel", "-[NSWindow setHidesOnDeactivate:] false",
              "-[NSWindow setCollectionBehavior:] 257", "-[NSWindow center]",
              "-[WelcomeWindowController initWithWindow:]", "-[NSHostingController initWithRootView:]",
              "-[NSHostingController setSizingOptions:] 8", "-[NSWindow setContentViewController:]",
              "-[NSWindow setDelegate:] WelcomeWindowController",
              "+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] 1, true"}})));
    EXPECT_EQ(controller->model()->currentStep, Step::intro);
    EXPECT_TRUE(controller->model()->isAccessibilityTrusted);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
}

TEST_F(WelcomeWindow, IsTheTargetOfNoAction) {
    make();
    EXPECT_THAT(controller->actionMethods(), IsEmpty());
}

TEST_F(WelcomeWindow, IsShownWithThePermission) {
    make();
    EXPECT_THAT(callsOf([this] { controller->show(); }), Not(hasCallAbout("CGEventTap")));
    EXPECT_EQ(controller->model()->currentStep, Step::intro);
    EXPECT_EQ(onlyWindow(session)->level, WindowLevel::floating);
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
}

TEST_F(WelcomeWindowWithoutPermission, IsShownInOrder) {
    make();
    EXPECT_THAT(callsOf([this] { controller->show(); }),
                ElementsAreArray(
                    inOrder({{NotTrusted, NotTrusted},
                             callsOf(registerForAccessibilityList),
                             {"-[NSWindow setLevel:] NSNormalWindowLevel", "NSApp",
                              "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyRegular",
                              "-[NSWindow makeKeyAndOrderFront:]", "NSApp",
                              "-[NSApplication activateIgnoringOtherApps:] true"}})));
}

TEST_F(WelcomeWindowWithoutPermission, IsShownAndListed) {
    make();
    controller->show();
    EXPECT_EQ(controller->model()->currentStep, Step::accessibility);
    EXPECT_TRUE(session.accessibility().isListed());
}

TEST_F(WelcomeWindowWithoutPermission, ThrowsTheProbesTapAwayWhenThereIsOne) {
    session.faults().delayTrust(true);
    setPermission(sim::Permission::granted);
    make();
    EXPECT_THAT(callsOf([this] { controller->show(); }), hasCallAbout("CGEventTapCreate"));
    EXPECT_EQ(session.taps().count(), 0U);
}

TEST_F(WelcomeWindow, BecomesKeyAfterTheApplicationIsActive) {
    make();
    controller->show();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    settle();
    EXPECT_EQ(session.windows().keyWindow(), onlyWindow(session));
}

TEST_F(WelcomeWindow, IsThereAlthoughTheSystemDoesNotActivateTheApplication) {
    session.faults().refuseActivation(true);
    makeAndShow();
    EXPECT_NE(onlyWindow(session), nullptr);
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    session.user().clickWindow(onlyWindow(session));
    EXPECT_EQ(session.windows().keyWindow(), onlyWindow(session));
}

TEST_F(WelcomeWindow, HasItsTitleStyleAndBehaviour) {
    makeAndShow();
    const auto window = onlyWindow(session);
    EXPECT_EQ(window->title, "Welcome to Kestrune");
    EXPECT_TRUE(window->has(WindowStyleMask::closable));
    EXPECT_FALSE(window->has(WindowStyleMask::miniaturizable));
    EXPECT_FALSE(window->has(WindowStyleMask::resizable));
    EXPECT_TRUE(window->has(WindowCollectionBehavior::canJoinAllSpaces));
    EXPECT_TRUE(window->has(WindowCollectionBehavior::fullScreenAuxiliary));
    EXPECT_FALSE(window->isReleasedWhenClosed);
    EXPECT_EQ(window->contentRect().width(), 460);
    EXPECT_EQ(window->contentRect().height(), sim::Windows::sceneOf(*window).size.height);
}

class WelcomeWindowInFrench : public WelcomeFixture {
protected:
    WelcomeWindowInFrench() : WelcomeFixture(sim::Permission::granted, french()) {}

private:
    static sim::BundleContents french() {
        sim::BundleContents bundle;
        bundle.localizedStrings = {{"Welcome to Kestrune", "Bienvenue dans Kestrune"}};
        return bundle;
    }
};

TEST_F(WelcomeWindowInFrench, HasItsTitleInTheUsersLanguage) {
    makeAndShow();
    EXPECT_EQ(onlyWindow(session)->title, "Bienvenue dans Kestrune");
}

TEST_F(WelcomeWindow, PublishesNothingAtATickThatFindsNothingNew) {
    makeAndShow();
    int changes = 0;
    const auto observation = controller->model()->observe([&] { ++changes; });
    session.advance(10s);
    EXPECT_EQ(changes, 0);
    EXPECT_THAT(calls(), Contains(Trusted).Times(10));
    setPermission(sim::Permission::switchedOff);
    session.advance(10s);
    EXPECT_EQ(changes, 1);
}

TEST_F(WelcomeWindow, PublishesAtEveryShowAndWheneverItBecomesKey) {
    makeAndShow();
    int changes = 0;
    const auto observation = controller->model()->observe([&] { ++changes; });
    controller->show();
    EXPECT_EQ(changes, 1);
    session.user().switchAway();
    session.user().switchToApplication();
    EXPECT_EQ(changes, 2);
}

TEST_F(WelcomeWindow, FinishesInOrder) {
    makeAndShow();
    press("Get started");
    EXPECT_THAT(callsOf([this] { controller->model()->finish(); }),
                ElementsAre("-[NSUserDefaults setBool:forKey:] hasCompletedOnboarding = true",
                            "-[NSTimer invalidate]", "-[NSWindow orderOut:]", "NSApp",
                            "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyAccessory"));
    EXPECT_EQ(finishedCalls, 1);
    EXPECT_FALSE(controller->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 0U);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
}

TEST_F(WelcomeWindow, HasDoneEverythingBeforeItTellsThatItHasFinished) {
    bool isRecorded = false;
    ActivationPolicy policy = ActivationPolicy::prohibited;
    controller = WelcomeWindowController::make(preferences, [&] {
        isRecorded = preferences->defaults().boolForKey(Preferences::HasCompletedOnboardingKey);
        policy = session.application().policy;
        controller.reset();
    });
    controller->show();
    settle();
    press("Get started");
    press("Finish");
    EXPECT_TRUE(isRecorded);
    EXPECT_EQ(policy, ActivationPolicy::accessory);
    EXPECT_EQ(controller, nullptr);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
}

TEST_F(WelcomeWindow, ClosedEarlyIsNotFinished) {
    makeAndShow();
    session.user().closeWindow(onlyWindow(session));
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
    EXPECT_EQ(session.defaults().find(entries::HasCompletedOnboarding), nullptr);
    EXPECT_EQ(finishedCalls, 0);
    EXPECT_TRUE(controller->isWatchingAccessibility());
    EXPECT_EQ(session.timers().count(), 1U);
}

TEST_F(WelcomeWindow, CanBeShownAgainAfterItWasClosed) {
    makeAndShow();
    press("Get started");
    session.user().closeWindow(onlyWindow(session));
    controller->show();
    settle();
    EXPECT_THAT(buttons(), ElementsAre("Finish")); // where it was left
    EXPECT_EQ(session.application().policy, ActivationPolicy::regular);
}

TEST_F(WelcomeWindow, ShownTwiceIsOneWindow) {
    makeAndShow();
    const auto window = onlyWindow(session);
    controller->show();
    settle();
    EXPECT_EQ(onlyWindow(session), window);
}

TEST_F(WelcomeWindow, LeavesTheIntroductionWhenItIsShownAgainWithoutThePermission) {
    makeAndShow();
    setPermission(sim::Permission::switchedOff);
    controller->show();
    settle();
    EXPECT_EQ(controller->model()->currentStep, Step::accessibility);
    EXPECT_EQ(onlyWindow(session)->level, WindowLevel::normal);
}

TEST_F(WelcomeWindow, DoesNotGoBackToTheIntroduction) {
    makeAndShow();
    press("Get started");
    controller->show();
    settle();
    EXPECT_EQ(controller->model()->currentStep, Step::accessibility);
    EXPECT_EQ(onlyWindow(session)->level, WindowLevel::normal);
}

TEST_F(WelcomeWindow, StopsPollingWhenItGoes) {
    makeAndShow();
    controller.reset();
    EXPECT_EQ(session.timers().count(), 0U);
    EXPECT_THAT(session.windows().shown(), IsEmpty());
}

TEST_F(WelcomeWindow, LeavesActionsBehindThatDoNothing) {
    makeAndShow();
    const auto model = controller->model();
    controller.reset();
    model->advanceFromIntro();
    model->requestPermissions();
    model->openAccessibilitySettings();
    model->finish();
    EXPECT_FALSE(model->hasRequestedPermission);
    EXPECT_THAT(session.openedURLs(), IsEmpty());
    EXPECT_EQ(session.defaults().find(entries::HasCompletedOnboarding), nullptr);
    EXPECT_EQ(finishedCalls, 0);
    EXPECT_EQ(model->currentStep, Step::intro);
}

TEST_F(WelcomeWindow, TicksForNobodyDoNothing) {
    make();
    const std::weak_ptr<WelcomeWindowController> watched = controller;
    session.advance(500ms);
    controller.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_THAT(callsOf([this] { session.advance(10s); }), IsEmpty());
}

TEST_F(WelcomeWindow, PausesItsPollingWhileAMenuIsOpen) {
    makeAndShow();
    setPermission(sim::Permission::switchedOff);
    session.timers().leaveDefaultMode();
    session.advance(5s);
    EXPECT_TRUE(controller->model()->isAccessibilityTrusted);
    session.timers().enterDefaultMode();
    session.advance(1s);
    EXPECT_FALSE(controller->model()->isAccessibilityTrusted);
}

using WelcomeWindowDeathTest = WelcomeWindow;

TEST_F(WelcomeWindowDeathTest, CanOnlyBeMadeByItself) {
    make();
    EXPECT_DEATH(session.windows().refuseConstruction("WelcomeWindowController"),
                 "Kestrune/WelcomeWindowController: Fatal error: init\\(coder:\\) is not supported");
}

TEST_F(WelcomeWindowDeathTest, StopsTheProcessWhenThePanesAddressIsNoURL) {
    makeAndShow();
    session.faults().refuseURLs(true);
    EXPECT_DEATH(controller->model()->openAccessibilitySettings(),
                 "Fatal error: The address of the Accessibility pane is no URL\\.");
}

} // namespace
} // namespace kestrune
