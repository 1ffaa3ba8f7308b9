// The user at the dialog that asks for the permission, and in System Settings' list of who has it.

#include "desk/paint/toolkit/RectMath.h"
#include "tests/desk/live/PartsFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;

constexpr const char* DialogTitle = "Accessibility Access (Events)";
constexpr const char* PaneTitle = "Accessibility";

class PermissionDialog : public PartsFixture {
protected:
    PermissionDialog() { session.accessibility().askUser(); }
};

class SettingsPaneOnTheDesk : public PartsFixture {
protected:
    SettingsPaneOnTheDesk() { session.user().openPane(); }

    sim::Permission permission() { return session.accessibility().permission(); }
    std::optional<bool> isOn() { return isSwitchOn(picture(), "Kestrune"); }
    bool isRowSelected() { return controlTitled(picture(), "Remove").has_value(); }
};

TEST_F(PermissionDialog, ShowsOnThePrimaryDisplayAboveItsMiddle) {
    EXPECT_THAT(titles(), ElementsAre(DialogTitle));
    const WindowPicture dialog = window(DialogTitle);
    EXPECT_EQ(centerOf(dialog.frame).x, 500);
    EXPECT_LT(centerOf(dialog.frame).y, 380);
    EXPECT_GT(dialog.frame.minY(), 100);
    EXPECT_EQ(dialog.titleBarHeight, 28);
    EXPECT_FALSE(dialog.isClosable);
    EXPECT_TRUE(dialog.isKey);
}

TEST_F(PermissionDialog, SaysWhoAsksForWhat) {
    const WindowPicture dialog = window(DialogTitle);
    EXPECT_THAT(
        textsIn(dialog),
        ElementsAre("“Kestrune” would like to control this computer using accessibility features.",
                    "Grant access to this application in Privacy & Security settings, located in System "
                    "Settings."));
    EXPECT_EQ(iconsIn(dialog), std::vector<std::string>{"icon.png"});
    EXPECT_EQ(std::get<ui::ButtonElement>(dialog.scene.elements.at(control("Deny").index)).shortcut,
              ui::KeyboardShortcut::defaultAction);
}

TEST_F(PermissionDialog, LeadsToThePane) {
    EXPECT_FALSE(click(control("Open System Settings")).pressedControl) << "it is none of the application's";
    EXPECT_THAT(titles(), ElementsAre(PaneTitle));
}

TEST_F(PermissionDialog, CanBeDenied) {
    click(control("Deny"));
    EXPECT_THAT(titles(), ElementsAre());
}

TEST_F(PermissionDialog, ActsOnlyWhenTheButtonIsReleasedWhereItWasPressed) {
    const DeskTarget openSettings = control("Open System Settings");
    const DeskTarget deny = control("Deny");
    parts.press(openSettings);
    EXPECT_EQ(window(DialogTitle).pressedElement, openSettings.index);
    parts.release(deny);
    EXPECT_FALSE(window(DialogTitle).pressedElement);
    parts.press(deny);
    parts.release(std::nullopt);
    parts.press(std::nullopt);
    parts.release(deny);
    parts.release(deny);
    click(DeskTarget::ofWindow(deny.window));
    EXPECT_THAT(titles(), ElementsAre(DialogTitle));
}

TEST_F(PermissionDialog, IsDeniedByReturnAndEscape) {
    for (const NavigationKey key : {NavigationKey::enter, NavigationKey::escape}) {
        session.accessibility().askUser();
        EXPECT_TRUE(parts.takesKeys());
        parts.press(NavigationKey::down);
        EXPECT_THAT(titles(), ElementsAre(DialogTitle));
        parts.press(key);
        EXPECT_THAT(titles(), ElementsAre());
        EXPECT_FALSE(parts.takesKeys());
    }
}

TEST_F(PermissionDialog, LeavesTheKeysToAnOpenMenu) {
    parts.openStatusMenu(0);
    parts.press(NavigationKey::escape);
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_THAT(titles(), ElementsAre(DialogTitle));
}

TEST_F(PermissionDialog, IsInFrontOfSystemSettings) {
    session.user().openPane();
    EXPECT_THAT(titles(), ElementsAre(DialogTitle, PaneTitle));
    click(DeskTarget::titleBar(window(PaneTitle).number));
    EXPECT_THAT(titles(), ElementsAre(DialogTitle, PaneTitle));
    EXPECT_TRUE(window(DialogTitle).isKey);
    EXPECT_FALSE(window(PaneTitle).isKey);
}

TEST_F(PermissionDialog, FollowsTheHandThatHoldsItsTitleBar) {
    const Rect before = window(DialogTitle).frame;
    session.movePointerTo({before.minX() + 30, before.minY() + 10});
    parts.press(DeskTarget::titleBar(window(DialogTitle).number));
    session.movePointerTo({before.minX() + 70, before.minY() + 30});
    parts.followPointer();
    parts.release(std::nullopt);
    EXPECT_EQ(window(DialogTitle).frame,
              (Rect{before.minX() + 40, before.minY() + 20, before.width(), before.height()}));
}

TEST_F(PermissionDialog, IsNotShownWithoutADisplay) {
    parts.displaysChanged();
    session.changeDisplays({});
    EXPECT_THAT(titles(), ElementsAre());
    session.changeDisplays({sim::makeDisplay(1, "One", {0, 0, 1000, 800})});
    EXPECT_THAT(titles(), ElementsAre(DialogTitle));
}

TEST_F(SettingsPaneOnTheDesk, ShowsBesideTheDialogWhereThereIsAnotherDisplay) {
    EXPECT_EQ(centerOf(window(PaneTitle).frame).x, 1500);
    parts.displaysChanged();
    session.changeDisplays({sim::makeDisplay(1, "One", {0, 0, 1000, 800})});
    EXPECT_EQ(centerOf(window(PaneTitle).frame).x, 500);
    EXPECT_EQ(window(PaneTitle).look, WindowLook::sidebar);
    EXPECT_EQ(window(PaneTitle).titleBarHeight, 52);
}

TEST_F(SettingsPaneOnTheDesk, KeepsItsTitleBarBelowTheMenuBarOfASmallDisplay) {
    parts.displaysChanged();
    session.changeDisplays({sim::makeDisplay(1, "One", {0, 0, 300, 200})});
    EXPECT_EQ(window(PaneTitle).frame.minY(), 24);
}

TEST_F(SettingsPaneOnTheDesk, ListsTheApplicationWithItsSwitch) {
    EXPECT_THAT(textsIn(window(PaneTitle)),
                ElementsAre("General", "Appearance", "Privacy & Security", "Desktop & Dock", "Displays",
                            "Allow the applications below to control your computer.", "Kestrune"));
    EXPECT_EQ(iconsIn(window(PaneTitle)), std::vector<std::string>{"icon.png"});
    EXPECT_EQ(isOn(), true);
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_EQ(isOn(), false);
    session.user().setPermission(sim::Permission::notListed);
    EXPECT_EQ(isOn(), std::nullopt);
    EXPECT_THAT(textsIn(window(PaneTitle)), testing::Contains("No Items"));
}

TEST_F(SettingsPaneOnTheDesk, FlipsTheSwitchWithAClickAndSlidesItsKnob) {
    EXPECT_FALSE(click(control("Kestrune")).pressedControl);
    EXPECT_EQ(permission(), sim::Permission::switchedOff);
    EXPECT_EQ(window(PaneTitle).movingSwitch, (MovingSwitch{control("Kestrune").index, 1}));
    click(control("Kestrune"));
    EXPECT_EQ(permission(), sim::Permission::granted);
    parts.press(control("Kestrune"));
    EXPECT_EQ(window(PaneTitle).pressedElement, control("Kestrune").index);
    parts.release(control("Select Kestrune"));
    EXPECT_EQ(permission(), sim::Permission::granted);
    EXPECT_FALSE(isRowSelected());
}

TEST_F(SettingsPaneOnTheDesk, SelectsARowUntilAClickBesideIt) {
    EXPECT_FALSE(isRowSelected()) << "there is nothing to remove";
    click(control("Select Kestrune"));
    EXPECT_TRUE(isRowSelected());
    click(control("Select None"));
    EXPECT_FALSE(isRowSelected());
}

TEST_F(SettingsPaneOnTheDesk, RemovesTheRow) {
    click(control("Select Kestrune"));
    click(control("Remove"));
    EXPECT_EQ(isOn(), std::nullopt);
    EXPECT_EQ(permission(), sim::Permission::rowDeleted);
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_FALSE(isRowSelected()) << "a new row is not the one that was chosen";
}

TEST_F(SettingsPaneOnTheDesk, ClosesAndForgetsTheSelection) {
    click(control("Select Kestrune"));
    click(DeskTarget::closeButton(window(PaneTitle).number));
    EXPECT_THAT(titles(), ElementsAre());
    session.user().openPane();
    EXPECT_FALSE(isRowSelected());
}

TEST_F(SettingsPaneOnTheDesk, ShowsThatItsCloseButtonIsUsed) {
    const DeskTarget close = DeskTarget::closeButton(window(PaneTitle).number);
    parts.hover(close);
    EXPECT_TRUE(window(PaneTitle).isCloseButtonHovered);
    parts.press(close);
    parts.hover(close);
    EXPECT_TRUE(window(PaneTitle).isCloseButtonPressed);
    parts.release(std::nullopt);
    EXPECT_THAT(titles(), ElementsAre(PaneTitle));
}

TEST_F(SettingsPaneOnTheDesk, DoesNothingMoreOnceItIsClosed) {
    const DeskTarget close = DeskTarget::closeButton(window(PaneTitle).number);
    const DeskTarget toggle = control("Kestrune");
    session.user().closePane();
    makeRegular();
    click(close);
    click(toggle);
    EXPECT_EQ(permission(), sim::Permission::granted);
}

TEST_F(SettingsPaneOnTheDesk, TakesTheKeysWhileItIsInFront) {
    EXPECT_TRUE(parts.takesKeys());
    parts.press(NavigationKey::escape);
    EXPECT_THAT(titles(), ElementsAre(PaneTitle));
    EXPECT_FALSE(window(PaneTitle).focusedElement);
    parts.press(NavigationKey::backTab);
    EXPECT_EQ(window(PaneTitle).focusedElement, control("Kestrune").index);
    EXPECT_FALSE(parts.press(NavigationKey::space).pressedControl) << "it is none of the application's";
    EXPECT_EQ(permission(), sim::Permission::switchedOff);
    parts.pressEquivalent("w", false);
    EXPECT_THAT(titles(), ElementsAre());
    EXPECT_FALSE(parts.takesKeys());
}

TEST_F(SettingsPaneOnTheDesk, SaysInTheMenuBarsWhoIsInFront) {
    EXPECT_EQ(picture().otherMenuTitles.front(), "System Settings");
    session.user().closePane();
    EXPECT_EQ(picture().otherMenuTitles.front(), "Finder");
}

} // namespace
} // namespace kestrune::desk
