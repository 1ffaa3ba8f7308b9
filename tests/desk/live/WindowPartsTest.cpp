#include "desk/live/world/WindowParts.h"

#include "desk/live/world/ScreenParts.h"
#include "desk/paint/toolkit/PangoMeasurer.h"
#include "desk/replay/ApplicationHost.h"
#include "sim/seam/WindowState.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::desk {
namespace {

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
        result.displays.resize(session.displays().connected().size());
        parts.addTo(result, "icon.png");
        return result;
    }

    WindowPicture wizard() { return picture().windows.at(0); }

    WindowControlTarget control(std::string_view title) {
        const WindowPicture window = wizard();
        for (std::size_t element = 0; element < window.scene.elements.size(); ++element) {
            if (titleOfControl(window.scene.elements[element]) == title) {
                return {window.number, element};
            }
        }
        ADD_FAILURE() << "no control " << title;
        return {};
    }

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
        session.accessibility().setPermission(sim::Permission::granted);
        session.advance(std::chrono::milliseconds(1100));
    }

    sim::Session session{options()};
    ApplicationHost host{session};
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
    EXPECT_EQ(window.depth, WindowDepth::beforePane);
    EXPECT_EQ(window.frame.width(), 460);
    EXPECT_EQ(window.frame.height(), window.scene.size.height + 28);
    // Global coordinates count from the top; the window stands above the middle.
    EXPECT_GT(window.frame.minY(), 100);
    EXPECT_LT(window.frame.minY() + window.frame.height() / 2, 400);
    EXPECT_FALSE(window.pressedElement);
    EXPECT_FALSE(window.focusedElement);
}

TEST_F(WindowPartsOnTheWizard, PressAButtonWhenItIsReleasedOverIt) {
    const WindowControlTarget request = control("Request permission");
    parts.press(request);
    EXPECT_EQ(wizard().pressedElement, request.element);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    const PartsOutcome outcome = parts.release(request);
    EXPECT_EQ(outcome.pressedControl, "Request permission");
    EXPECT_TRUE(session.accessibility().isDialogShown());
    EXPECT_FALSE(wizard().pressedElement);
}

TEST_F(WindowPartsOnTheWizard, DropThePressThatIsDrawnOffAndTakeItUpAgain) {
    const WindowControlTarget request = control("Request permission");
    parts.press(request);
    parts.hover(WindowTarget{request.window});
    EXPECT_FALSE(wizard().pressedElement);
    parts.hover(request);
    EXPECT_EQ(wizard().pressedElement, request.element);
    parts.hover(std::nullopt);
    EXPECT_FALSE(parts.release(std::nullopt).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    // The next release belongs to no press.
    EXPECT_FALSE(parts.release(request).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
}

TEST_F(WindowPartsOnTheWizard, DoNotPressWhatHasTakenTheButtonsPlace) {
    const WindowControlTarget request = control("Request permission");
    parts.press(request);
    grant();
    EXPECT_EQ(control("Finish"), request);
    EXPECT_FALSE(wizard().pressedElement);
    EXPECT_FALSE(parts.release(request).pressedControl);
    EXPECT_FALSE(session.accessibility().isDialogShown());
    EXPECT_EQ(picture().windows.size(), 1U);
}

TEST_F(WindowPartsOnTheWizard, CloseTheWindowWithItsButton) {
    const WindowCloseTarget close{wizard().number};
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
    click(WindowTitleTarget{close.window});
    EXPECT_TRUE(picture().windows.empty());
}

TEST_F(WindowPartsOnTheWizard, ShowWhenThePointerIsOverTheCloseButton) {
    const WindowCloseTarget close{wizard().number};
    const WindowControlTarget request = control("Request permission");
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
    session.windows().setActive(false);
    const WindowCloseTarget close{wizard().number};
    parts.press(close);
    EXPECT_FALSE(session.application().isActive);
    parts.release(close);
    EXPECT_TRUE(picture().windows.empty());
}

TEST_F(WindowPartsOnTheWizard, DragTheWindowByItsTitleBar) {
    const Rect before = wizard().frame;
    session.movePointerTo({before.minX() + 200, before.minY() + 10});
    parts.press(WindowTitleTarget{wizard().number});
    session.movePointerTo({before.minX() + 260, before.minY() + 50});
    parts.followPointer();
    EXPECT_EQ(wizard().frame, Rect(before.minX() + 60, before.minY() + 40, before.width(), before.height()));
    // The menu bar stops a title bar.
    session.movePointerTo({before.minX() + 260, 3});
    parts.followPointer();
    EXPECT_EQ(wizard().frame.minY(), 24);
    parts.release(WindowTitleTarget{wizard().number});
    session.movePointerTo({500, 500});
    parts.followPointer();
    EXPECT_EQ(wizard().frame.minY(), 24);
}

TEST_F(WindowPartsOnTheWizard, BringTheWindowForwardWithAClickAndPutItBehindWithOneElsewhere) {
    click(PaneTarget{});
    EXPECT_FALSE(wizard().isKey);
    EXPECT_EQ(wizard().depth, WindowDepth::behindSystemWindows);
    click(WindowTarget{wizard().number});
    EXPECT_TRUE(wizard().isKey);
    EXPECT_EQ(wizard().depth, WindowDepth::beforePane);
    parts.press(std::nullopt);
    EXPECT_FALSE(wizard().isKey);
    click(WindowTitleTarget{wizard().number});
    EXPECT_TRUE(wizard().isKey);
}

TEST_F(WindowPartsOnTheWizard, GoFromControlToControlWithTab) {
    click(control("Request permission"));
    click(DialogButtonTarget{DialogButton::deny});
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
    const WindowControlTarget request = control("Request permission");
    parts.press(request);
    parts.displaysChanged();
    EXPECT_FALSE(wizard().pressedElement);
    EXPECT_FALSE(parts.release(request).pressedControl);
}

TEST_F(WindowPartsOnTheWizard, KeepTheNumberOfAWindow) {
    const std::size_t number = wizard().number;
    click(WindowCloseTarget{number});
    session.menus().open(sim::StatusItemIndex{0});
    session.menus().choose(0); // "Complete setup…"
    session.advance(sim::Duration::zero());
    EXPECT_EQ(wizard().number, number);
    EXPECT_TRUE(wizard().isKey);
}

TEST_F(WindowPartsOnTheWizard, KnowNoWindowAfterTheProcessHasEnded) {
    const WindowControlTarget request = control("Request permission");
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
    WindowParts parts(session);
    DeskPicture picture;
    parts.addTo(picture);
    ASSERT_EQ(picture.windows.size(), 1U);
    EXPECT_EQ(picture.windows[0].depth, WindowDepth::beforeDialog);
    EXPECT_FALSE(picture.windows[0].isClosable);
    EXPECT_FALSE(picture.windows[0].isKey);
    // A view without controls, or no view, has nothing to go to.
    session.windows().setActive(true);
    parts.press(NavigationKey::tab);
    parts.press(NavigationKey::enter);
    EXPECT_EQ(parts.press(NavigationKey::space), std::nullopt);
}

} // namespace
} // namespace kestrune::desk
