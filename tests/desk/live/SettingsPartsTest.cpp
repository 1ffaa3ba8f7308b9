// A user with mouse and keyboard at the Settings window, and at what it leads to.

#include "tests/desk/live/SettingsOnTheDesk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* MailTitle = "New Message";

TEST_F(SettingsOnTheDesk, OpenFromTheStatusMenuWithTheMouse) {
    open();
    const WindowPicture shown = window();
    EXPECT_TRUE(shown.isKey);
    EXPECT_TRUE(shown.isClosable);
    EXPECT_TRUE(shown.isMiniaturizable);
    EXPECT_FALSE(shown.isResizable);
    EXPECT_EQ(shown.frame.width(), 440);
    EXPECT_EQ(shown.frame.height(), shown.scene.size.height + shown.titleBarHeight);
    EXPECT_EQ(desk.news().text, "Kestrune opened its window “Kestrune Settings”");
}

TEST_F(SettingsOnTheDesk, OpenFromTheStatusMenuWithTheKeyboard) {
    desk.openStatusMenu();
    // Both displays, Disable, and then Settings.
    for (int row = 0; row < 3; ++row) {
        desk.navigate(NavigationKey::down);
    }
    desk.navigate(NavigationKey::enter);
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre(SettingsTitle));
}

TEST_F(SettingsOnTheDesk, ComeForwardFromTheMainMenuByMouseAndKey) {
    open();
    ASSERT_FALSE(picture().mainMenuTitles.empty());
    hand.click(DeskTarget::mainMenuTitle(0, 0));
    hand.clickRow("Settings…");
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre(SettingsTitle));
    EXPECT_EQ(desk.news().text, "“Settings…” brings “Kestrune Settings” to the front");
    desk.announce({});
    desk.pressEquivalent(",", false);
    EXPECT_EQ(desk.news().text, "“⌘,” brings “Kestrune Settings” to the front");
}

TEST_F(SettingsOnTheDesk, ShowVersionAndCopyrightOfTheBundle) {
    open();
    const sim::BundleContents& bundle = desk.session().bundle();
    const std::string version =
        *bundle.infoString("CFBundleShortVersionString") + " (" + *bundle.infoString("CFBundleVersion") + ")";
    EXPECT_THAT(textsIn(window()), ElementsAre("Launch at login", "Kestrune " + version,
                                               *bundle.infoString("NSHumanReadableCopyright")));
}

TEST_F(SettingsOnTheDesk, FlipTheSwitchWithAClickAndSlideItsKnob) {
    open();
    EXPECT_FALSE(window().movingSwitch);
    hand.click(toggle());
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
    EXPECT_EQ(desk.news().text, "Kestrune will open when the user logs in");
    EXPECT_EQ(window().movingSwitch, (MovingSwitch{toggle().index, 0}));
    desk.advance(60ms);
    const double position = window().movingSwitch.value().position;
    EXPECT_GT(position, 0.5);
    EXPECT_LT(position, 1);
    desk.advance(120ms);
    EXPECT_FALSE(window().movingSwitch);
    EXPECT_TRUE(isSwitchOn());
    hand.click(toggle());
    EXPECT_EQ(window().movingSwitch->position, 1);
    desk.advance(1s);
    EXPECT_FALSE(isSwitchOn());
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
    EXPECT_EQ(desk.news().text, "Kestrune will not open when the user logs in");
}

TEST_F(SettingsOnTheDesk, DragTheKnobToTheOtherSide) {
    open();
    hand.pointAt(toggle());
    desk.pressButton(toggle());
    EXPECT_FALSE(window().movingSwitch);
    drag(5, 40);
    desk.hover(std::nullopt);
    EXPECT_GT(window().movingSwitch.value().position, 0.3);
    EXPECT_EQ(window().pressedElement, toggle().index) << "a knob is held wherever the hand goes";
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
    drag(7, 0);
    desk.releaseButton(std::nullopt);
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
    EXPECT_FALSE(window().pressedElement);
    desk.advance(1s);
    EXPECT_TRUE(isSwitchOn());
    dragSwitch(-30);
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
}

TEST_F(SettingsOnTheDesk, LetTheKnobGoBackToTheNearerSide) {
    open();
    dragSwitch(5);
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
    EXPECT_GT(window().movingSwitch.value().position, 0.3);
    desk.advance(1s);
    EXPECT_FALSE(window().movingSwitch);
    // To the wrong side there is nowhere to go.
    dragSwitch(-30);
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
}

TEST_F(SettingsOnTheDesk, DropAKnobWhoseWindowHasGone) {
    open();
    hand.pointAt(toggle());
    desk.pressButton(toggle());
    drag(12, 0);
    desk.quitOrLaunch();
    desk.releaseButton(std::nullopt);
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
    EXPECT_TRUE(picture().windows.empty());
}

TEST_F(SettingsOnTheDesk, GoThroughTheControlsWithTabAndPressThemWithSpace) {
    open();
    EXPECT_FALSE(focusedTitle());
    for (const char* const title :
         {"Launch at login", "Check for Updates…", "Report a Bug…", "Launch at login"}) {
        desk.navigate(NavigationKey::tab);
        EXPECT_EQ(focusedTitle(), title);
    }
    desk.navigate(NavigationKey::space);
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
    EXPECT_TRUE(window().movingSwitch);
    desk.navigate(NavigationKey::backTab);
    desk.navigate(NavigationKey::space);
    EXPECT_TRUE(isOpen(MailTitle));
}

TEST_F(SettingsOnTheDesk, GoIntoTheDockAndComeBackFromItsTile) {
    open();
    const std::size_t number = window().number;
    hand.pointAt(DeskTarget::minimizeButton(number));
    EXPECT_TRUE(window().isMinimizeButtonHovered);
    desk.pressButton(DeskTarget::minimizeButton(number));
    EXPECT_TRUE(window().isMinimizeButtonPressed);
    desk.releaseButton(DeskTarget::minimizeButton(number));
    EXPECT_TRUE(picture().windows.empty());
    ASSERT_EQ(picture().miniaturized.size(), 1U);
    EXPECT_EQ(picture().miniaturized[0].title, SettingsTitle);
    EXPECT_FALSE(picture().mainMenuTitles.empty()) << "the application stays in front";
    EXPECT_EQ(desk.news().text, "Kestrune's window “Kestrune Settings” is in the Dock");
    hand.click(DeskTarget::dockTile(number));
    EXPECT_FALSE(hand.missing()) << *hand.missing();
    EXPECT_TRUE(window().isKey);
    EXPECT_TRUE(picture().miniaturized.empty());
    EXPECT_EQ(desk.news().text, "Kestrune's window “Kestrune Settings” is back from the Dock");
}

TEST_F(SettingsOnTheDesk, ComeBackFromTheDockThroughTheMenu) {
    open();
    hand.click(DeskTarget::minimizeButton(window().number));
    open();
    EXPECT_TRUE(window().isKey);
    EXPECT_TRUE(picture().miniaturized.empty());
    hand.click(DeskTarget::minimizeButton(window().number));
    desk.quitOrLaunch();
    EXPECT_TRUE(picture().miniaturized.empty());
}

TEST_F(SettingsOnTheDesk, CloseAndGiveTheMainMenuAway) {
    open();
    hand.click(DeskTarget::closeButton(window().number));
    EXPECT_TRUE(picture().windows.empty());
    EXPECT_TRUE(picture().mainMenuTitles.empty());
    EXPECT_EQ(desk.news().text, "Kestrune's window “Kestrune Settings” is closed");
}

TEST_F(SettingsOnTheDesk, ShowTheMailThatTheBugReportOpens) {
    open();
    hand.clickControl("Report a Bug…");
    const WindowPicture mail = window(MailTitle);
    const sim::BundleContents& bundle = desk.session().bundle();
    EXPECT_THAT(textsIn(mail),
                ElementsAre("To:", HasSubstr("@"), "Subject:", "Kestrune bug report",
                            "Describe what went wrong:\n\n\n---\nApp version: " +
                                *bundle.infoString("CFBundleShortVersionString") + " (" +
                                *bundle.infoString("CFBundleVersion") + ")\nmacOS: 14.5.0\nLocale: en_US"));
    EXPECT_EQ(mail.look, WindowLook::paper);
    EXPECT_EQ(desk.news().text, "Mail shows the mail that Kestrune composed; nothing is sent");
    // The mail program is in front, and Kestrune's window behind it.
    EXPECT_TRUE(mail.isKey);
    EXPECT_FALSE(window().isKey);
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre(MailTitle, SettingsTitle));
}

TEST_F(SettingsOnTheDesk, CloseTheMailByMouseAndKey) {
    open();
    hand.clickControl("Report a Bug…");
    hand.click(DeskTarget::ofWindow(window(MailTitle).number));
    EXPECT_TRUE(isOpen(MailTitle));
    hand.closeWindow(MailTitle);
    EXPECT_FALSE(isOpen(MailTitle));
    EXPECT_TRUE(window().isKey);
    desk.pressEquivalent("w", false);
    hand.clickControl("Report a Bug…");
    ASSERT_TRUE(isOpen(MailTitle));
    desk.pressEquivalent("w", false);
    EXPECT_FALSE(isOpen(MailTitle));
}

TEST_F(SettingsOnTheDesk, LeaveTheMailOpenBehindTheWindowThatIsClicked) {
    open();
    hand.clickControl("Report a Bug…");
    hand.click(DeskTarget::titleBar(window().number));
    EXPECT_TRUE(window().isKey);
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre(SettingsTitle, MailTitle));
    EXPECT_FALSE(window(MailTitle).isKey);
}

} // namespace
} // namespace kestrune::desk
