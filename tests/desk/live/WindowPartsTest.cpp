#include "desk/live/world/WindowParts.h"

#include "desk/live/world/ScreenParts.h"
#include "desk/paint/mac/ScenePainter.h"
#include "replay/ApplicationHost.h"
#include "sim/neighbours/Neighbours.h"
#include "sim/services/WindowState.h"
#include "tests/desk/live/WindowTitles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;

// The wizard of a first launch, on the first of two displays.
class WindowPartsOnTheWizard : public testing::Test {
protected:
    WindowPartsOnTheWizard() { session.advance(std::chrono::seconds(1)); }

    static sim::SessionOptions options() {
        static const PangoMeasurer measurer;
        sim::SessionOptions result;
        result.displays = {sim::makeDisplay(1, "One", {0, 0, 1000, 800}),
                           sim::makeDisplay(2, "Two", {1000, 0, 1000, 800})};
        result.permission = sim::Permission::notListed;
        result.measurer = &measurer;
        return result;
    }

    DeskPicture picture() {
        DeskPicture result;
        parts.addTo(result);
        return result;
    }

    WindowPicture wizard() { return parts.applicationWindow().value(); }

    DeskTarget control(std::string_view title) {
        const auto target = controlTitled(picture(), title);
        EXPECT_TRUE(target) << title;
        return target.value_or(DeskTarget());
    }

    std::vector<std::string> titles() { return titlesIn(picture()); }

    std::optional<std::string> focusedTitle() {
        const WindowPicture window = wizard();
        return window.focusedElement ? titleOfControl(window.scene.elements.at(*window.focusedElement))
                                     : std::nullopt;
    }

    PartsOutcome click(const DeskTarget& target) {
        parts.press(target);
        PartsOutcome outcome = parts.release(target);
        session.advance(sim::Duration::zero());
        return outcome;
    }

    void grant() {
        session.user().setPermission(sim::Permission::granted);
        session.advance(std::chrono::milliseconds(1100));
    }

    sim::Session session{options()};
    replay::ApplicationHost host{session};
    ScreenParts parts{session};
};

TEST_F(WindowPartsOnTheWizard, ShowTheWindowAsItIs) {
    const WindowPicture window = wizard();
    EXPECT_EQ(window.title, "Welcome to Kestrune");
    EXPECT_EQ(window.titleBarHeight, 28);
    EXPECT_TRUE(window.isClosable);
    EXPECT_FALSE(window.isMiniaturizable);
    EXPECT_FALSE(window.isResizable);
    EXPECT_TRUE(window.isKey);
    EXPECT_EQ(window.frame.width(), 460);
    EXPECT_EQ(window.frame.height(), window.scene.size.height + 28);
    // Global coordinates count from the top; the window stands above the middle.
    EXPECT_GT(window.frame.minY(), 100);
    EXPECT_LT(window.frame.minY() + window.frame.height() / 2, 400);
    EXPECT_FALSE(window.pressedElement);
    EXPECT_FALSE(window.focusedElement);
}

TEST_F(WindowPartsOnTheWizard, PressAButtonWhenItIsReleasedOverIt) {
    const DeskTarget request = control("Request permission");
    parts.press(request);
    EXPECT_EQ(wizard().pressedElement, request.index);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    const PartsOutcome outcome = parts.release(request);
    EXPECT_EQ(outcome.pressedControl, "Request permission");
    EXPECT_TRUE(session.accessibility().isDialogShown());
    EXPECT_FALSE(wizard().pressedElement);
}

TEST_F(WindowPartsOnTheWizard, DropThePressThatIsDrawnOffAndTakeItUpAgain) {
    const DeskTarget request = control("Request permission");
    parts.press(request);
    parts.hover(DeskTarget::ofWindow(request.window));
    EXPECT_FALSE(wizard().pressedElement);
    parts.hover(request);
    EXPECT_EQ(wizard().pressedElement, request.index);
    parts.hover(std::nullopt);
    EXPECT_FALSE(parts.release(std::nullopt).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    // The next release belongs to no press.
    EXPECT_FALSE(parts.release(request).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
}

TEST_F(WindowPartsOnTheWizard, DoNotPressWhatHasTakenTheButtonsPlace) {
    const DeskTarget request = control("Request permission");
    parts.press(request);
    grant();
    EXPECT_EQ(control("Finish"), request);
    EXPECT_FALSE(wizard().pressedElement);
    EXPECT_FALSE(parts.release(request).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    EXPECT_EQ(picture().windows.size(), 1U);
}

TEST_F(WindowPartsOnTheWizard, CloseTheWindowWithItsButton) {
    const DeskTarget close = DeskTarget::closeButton(wizard().number);
    parts.press(close);
    EXPECT_TRUE(wizard().isCloseButtonPressed);
    parts.hover(std::nullopt);
    EXPECT_FALSE(wizard().isCloseButtonPressed);
    parts.release(std::nullopt);
    EXPECT_EQ(picture().windows.size(), 1U);
    click(close);
    EXPECT_TRUE(picture().windows.empty());
    EXPECT_EQ(session.application().policy, ActivationPolicy::accessory);
    // Nothing is left to be pressed.
    click(close);
    click(DeskTarget::titleBar(close.window));
    EXPECT_TRUE(picture().windows.empty());
}

TEST_F(WindowPartsOnTheWizard, ShowWhenThePointerIsOverTheCloseButton) {
    const DeskTarget close = DeskTarget::closeButton(wizard().number);
    const DeskTarget request = control("Request permission");
    EXPECT_FALSE(wizard().isCloseButtonHovered);
    parts.hover(close);
    EXPECT_TRUE(wizard().isCloseButtonHovered);
    parts.hover(request);
    EXPECT_FALSE(wizard().isCloseButtonHovered);
    // What is held keeps the pointer to itself.
    parts.press(request);
    parts.hover(close);
    EXPECT_FALSE(wizard().isCloseButtonHovered);
    parts.displaysChanged();
    EXPECT_FALSE(wizard().isCloseButtonHovered);
}

TEST_F(WindowPartsOnTheWizard, CloseAWindowInTheBackgroundWithoutBringingItForward) {
    session.user().switchAway();
    const DeskTarget close = DeskTarget::closeButton(wizard().number);
    parts.press(close);
    EXPECT_FALSE(session.application().isActive);
    parts.release(close);
    EXPECT_TRUE(picture().windows.empty());
}

TEST_F(WindowPartsOnTheWizard, DragTheWindowByItsTitleBar) {
    const Rect before = wizard().frame;
    session.movePointerTo({before.minX() + 200, before.minY() + 10});
    parts.press(DeskTarget::titleBar(wizard().number));
    session.movePointerTo({before.minX() + 260, before.minY() + 50});
    parts.followPointer();
    EXPECT_EQ(wizard().frame, Rect(before.minX() + 60, before.minY() + 40, before.width(), before.height()));
    // The menu bar stops a title bar.
    session.movePointerTo({before.minX() + 260, 3});
    parts.followPointer();
    EXPECT_EQ(wizard().frame.minY(), 24);
    parts.release(DeskTarget::titleBar(wizard().number));
    session.movePointerTo({500, 500});
    parts.followPointer();
    EXPECT_EQ(wizard().frame.minY(), 24);
}

TEST_F(WindowPartsOnTheWizard, BringTheWindowForwardWithAClickAndPutItBehindWithOneElsewhere) {
    session.user().openPane();
    EXPECT_THAT(titles(), ElementsAre("Accessibility", "Welcome to Kestrune"));
    click(DeskTarget::ofWindow(wizard().number));
    EXPECT_TRUE(wizard().isKey);
    EXPECT_FALSE(picture().windows.at(1).isKey);
    EXPECT_THAT(titles(), ElementsAre("Welcome to Kestrune", "Accessibility"));
    click(DeskTarget::ofWindow(picture().windows.at(1).number));
    EXPECT_FALSE(wizard().isKey);
    EXPECT_TRUE(picture().windows.at(0).isKey);
    EXPECT_THAT(titles(), ElementsAre("Accessibility", "Welcome to Kestrune"));
    click(DeskTarget::titleBar(wizard().number));
    parts.press(std::nullopt);
    EXPECT_FALSE(wizard().isKey);
    click(DeskTarget::titleBar(wizard().number));
    EXPECT_TRUE(wizard().isKey);
}

TEST_F(WindowPartsOnTheWizard, GoFromControlToControlWithTab) {
    click(control("Request permission"));
    click(control("Deny"));
    ASSERT_TRUE(wizard().isKey);
    EXPECT_FALSE(focusedTitle());
    parts.press(NavigationKey::tab);
    EXPECT_EQ(focusedTitle(), "Open System Settings");
    parts.press(NavigationKey::tab);
    EXPECT_EQ(focusedTitle(), "Request permission");
    parts.press(NavigationKey::tab);
    EXPECT_EQ(focusedTitle(), "Open System Settings");
    parts.press(NavigationKey::backTab);
    EXPECT_EQ(focusedTitle(), "Request permission");
    // The arrows are for menus.
    for (const auto key :
         {NavigationKey::up, NavigationKey::down, NavigationKey::left, NavigationKey::right}) {
        parts.press(key);
    }
    EXPECT_EQ(focusedTitle(), "Request permission");
    grant();
    EXPECT_FALSE(focusedTitle());
}

TEST_F(WindowPartsOnTheWizard, PressTheFocusedControlWithTheSpaceBar) {
    EXPECT_FALSE(parts.press(NavigationKey::space).pressedControl);
    parts.press(NavigationKey::backTab);
    EXPECT_EQ(parts.press(NavigationKey::space).pressedControl, "Request permission");
    EXPECT_TRUE(session.accessibility().isDialogShown());
}

TEST_F(WindowPartsOnTheWizard, PressTheDefaultButtonWithReturnOnceThereIsOne) {
    EXPECT_TRUE(parts.takesKeys());
    EXPECT_FALSE(parts.press(NavigationKey::enter).pressedControl);
    EXPECT_FALSE(parts.press(NavigationKey::escape).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    grant();
    EXPECT_EQ(parts.press(NavigationKey::enter).pressedControl, "Finish");
    EXPECT_TRUE(picture().windows.empty());
    EXPECT_TRUE(session.defaults().find("hasCompletedOnboarding")->asBool());
    EXPECT_FALSE(parts.takesKeys());
}

TEST_F(WindowPartsOnTheWizard, LeaveTheKeysToTheDialogThatIsInFront) {
    click(control("Request permission"));
    EXPECT_FALSE(wizard().isKey);
    parts.press(NavigationKey::tab);
    EXPECT_TRUE(session.accessibility().isDialogShown());
    parts.press(NavigationKey::enter);
    EXPECT_FALSE(session.accessibility().isDialogShown());
}

TEST_F(WindowPartsOnTheWizard, LetGoWhenTheDisplaysChange) {
    const DeskTarget request = control("Request permission");
    parts.press(request);
    parts.displaysChanged();
    EXPECT_FALSE(wizard().pressedElement);
    EXPECT_FALSE(parts.release(request).pressedControl);
}

TEST_F(WindowPartsOnTheWizard, KeepTheNumberOfAWindow) {
    const std::size_t number = wizard().number;
    click(DeskTarget::closeButton(number));
    session.user().openMenu(sim::StatusItemIndex{0});
    session.user().chooseRow(0); // "Complete setup…"
    session.advance(sim::Duration::zero());
    EXPECT_EQ(wizard().number, number);
    EXPECT_TRUE(wizard().isKey);
}

TEST_F(WindowPartsOnTheWizard, KnowNoWindowAfterTheProcessHasEnded) {
    const DeskTarget request = control("Request permission");
    parts.press(request);
    ASSERT_TRUE(host.quit());
    EXPECT_TRUE(picture().windows.empty());
    EXPECT_FALSE(parts.release(request).pressedControl);
    EXPECT_FALSE(parts.takesKeys());
}

TEST(WindowParts, KeepTheIntroductionInFrontOfTheDialog) {
    sim::SessionOptions options;
    options.displays = {sim::makeDisplay(1, "One", {0, 0, 1000, 800})};
    sim::Session session(options);
    Window window({100, 100, 300, 200}, WindowStyleMask::titled, BackingStoreType::buffered, false);
    window.setLevel(WindowLevel::floating);
    window.makeKeyAndOrderFront();
    session.accessibility().askUser();
    sim::Neighbours neighbours(session);
    neighbours.catchUp();
    WindowParts parts(session);
    DeskPicture picture;
    parts.addTo(picture);
    ASSERT_EQ(picture.windows.size(), 2U);
    EXPECT_EQ(picture.windows[0].titleBarHeight, 28);
    EXPECT_FALSE(picture.windows[0].isClosable);
    EXPECT_FALSE(picture.windows[0].isKey);
    EXPECT_EQ(picture.windows[1].title, "Accessibility Access (Events)");
    // A view without controls, or no view, has nothing to go to.
    session.user().switchToApplication();
    parts.press(NavigationKey::tab);
    parts.press(NavigationKey::enter);
    EXPECT_EQ(parts.press(NavigationKey::space), std::nullopt);
}

} // namespace
} // namespace kestrune::desk
