// What the user does at the wizard, and what it shows.
#include "tests/Kestrune/WelcomeFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using namespace std::chrono_literals;

using Step = WelcomeViewModel::Step;
using WelcomeSteps = WelcomeFixture;
using WelcomeStepsWithoutPermission = WelcomeWithoutPermission;

const std::string Waiting = "Waiting for permission…";
const std::string Granted = "Permission granted";

TEST_F(WelcomeSteps, GoesFromTheIntroductionToThePermission) {
    makeAndShow();
    EXPECT_THAT(buttons(), ElementsAre("Get started"));
    EXPECT_EQ(onlyWindow(session)->level, WindowLevel::floating);
    const double top = onlyWindow(session)->frame.maxY();
    EXPECT_TRUE(press("Get started"));
    EXPECT_EQ(controller->model()->currentStep, Step::accessibility);
    EXPECT_EQ(onlyWindow(session)->level, WindowLevel::normal);
    EXPECT_THAT(buttons(), ElementsAre("Finish"));
    EXPECT_EQ(onlyWindow(session)->frame.maxY(), top);
}

TEST_F(WelcomeSteps, GoesOnWithReturn) {
    makeAndShow();
    EXPECT_TRUE(session.user().press(ui::KeyboardShortcut::defaultAction));
    settle();
    EXPECT_EQ(controller->model()->currentStep, Step::accessibility);
    EXPECT_TRUE(session.user().press(ui::KeyboardShortcut::defaultAction));
    EXPECT_EQ(finishedCalls, 1);
}

TEST_F(WelcomeStepsWithoutPermission, DoesNotAnswerToReturnBeforeThePermissionIsThere) {
    makeAndShow();
    EXPECT_FALSE(session.user().press(ui::KeyboardShortcut::defaultAction));
    setPermission(sim::Permission::granted);
    session.advance(1s);
    EXPECT_TRUE(session.user().press(ui::KeyboardShortcut::defaultAction));
    EXPECT_EQ(finishedCalls, 1);
}

TEST_F(WelcomeStepsWithoutPermission, OffersTheRequestThenTheSettingsThenTheEnd) {
    makeAndShow();
    EXPECT_THAT(buttons(), ElementsAre("Request permission"));
    press("Request permission");
    EXPECT_THAT(buttons(), ElementsAre("Open System Settings", "Request permission"));
    setPermission(sim::Permission::granted);
    session.advance(1s);
    EXPECT_THAT(buttons(), ElementsAre("Finish"));
}

TEST_F(WelcomeStepsWithoutPermission, RemembersTheRequestBeforeItAsksTheSystem) {
    makeAndShow();
    bool hadAsked = true;
    const auto observation =
        controller->model()->observe([&] { hadAsked = session.accessibility().isDialogShown(); });
    press("Request permission");
    EXPECT_FALSE(hadAsked);
    EXPECT_TRUE(session.accessibility().isDialogShown());
}

TEST_F(WelcomeStepsWithoutPermission, AsksTheSystemEachTime) {
    makeAndShow();
    controller->model()->requestPermissions();
    controller->model()->requestPermissions();
    EXPECT_TRUE(controller->model()->hasRequestedPermission);
    EXPECT_THAT(
        calls(),
        Contains("AXIsProcessTrustedWithOptions({kAXTrustedCheckOptionPrompt: true}) -> false").Times(2));
}

TEST_F(WelcomeStepsWithoutPermission, DoesNotTakeTheAnswerOfTheRequest) {
    makeAndShow();
    setPermission(sim::Permission::granted);
    press("Request permission");
    EXPECT_FALSE(controller->model()->isAccessibilityTrusted);
}

TEST_F(WelcomeStepsWithoutPermission, OpensThePane) {
    makeAndShow();
    press("Request permission");
    session.user().denyInDialog();
    press("Open System Settings");
    EXPECT_THAT(session.openedURLs(),
                ElementsAre("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    EXPECT_EQ(onlyWindow(session)->level, WindowLevel::normal);
}

TEST_F(WelcomeStepsWithoutPermission, SeesThePermissionAtTheNextTick) {
    makeAndShow();
    EXPECT_THAT(texts(), Contains(Waiting));
    setPermission(sim::Permission::granted);
    session.advance(999ms);
    EXPECT_THAT(texts(), Contains(Waiting));
    session.advance(1ms);
    EXPECT_THAT(texts(), Contains(Granted));
}

TEST_F(WelcomeStepsWithoutPermission, SeesThePermissionAtOnceWhenItsWindowBecomesKeyAgain) {
    makeAndShow();
    session.user().openPane();
    session.user().flipPermissionSwitch();
    EXPECT_FALSE(controller->model()->isAccessibilityTrusted);
    session.user().clickWindow(onlyWindow(session));
    EXPECT_TRUE(controller->model()->isAccessibilityTrusted);
    settle();
    EXPECT_THAT(buttons(), ElementsAre("Finish"));
}

TEST_F(WelcomeSteps, FallsBackWhenThePermissionIsRevoked) {
    makeAndShow();
    press("Get started");
    EXPECT_THAT(buttons(), ElementsAre("Finish"));
    setPermission(sim::Permission::switchedOff);
    session.advance(1s);
    EXPECT_THAT(buttons(), ElementsAre("Request permission"));
    EXPECT_THAT(texts(), Contains(Waiting));
}

TEST_F(WelcomeStepsWithoutPermission, FallBackToWhatWasThereBeforeTheGrant) {
    makeAndShow();
    press("Request permission");
    const ui::Scene waiting = scene();
    setPermission(sim::Permission::granted);
    session.advance(1s);
    EXPECT_THAT(buttons(), ElementsAre("Finish"));
    setPermission(sim::Permission::switchedOff);
    session.advance(1s);
    EXPECT_THAT(buttons(), ElementsAre("Open System Settings", "Request permission"));
    EXPECT_EQ(scene(), waiting);
}

TEST_F(WelcomeStepsWithoutPermission, GoOnLookingForThePermissionWhileTheWindowIsClosed) {
    makeAndShow();
    session.user().closeWindow(onlyWindow(session));
    setPermission(sim::Permission::granted);
    session.advance(1s);
    EXPECT_TRUE(controller->model()->isAccessibilityTrusted);
}

} // namespace
} // namespace kestrune
