// A user with mouse and keyboard at the windows of the updater.

#include "desk/live/world/LivePicture.h"
#include "desk/live/world/WindowParts.h"
#include "tests/desk/live/HandOnTheStage.h"
#include "tests/desk/live/WindowTitles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;
using namespace std::chrono_literals;

constexpr auto UntilTheCheckIsOver = 500ms;

class UpdatesOnTheDesk : public testing::Test {
protected:
    UpdatesOnTheDesk() {
        desk.openStatusMenu();
        desk.navigate(NavigationKey::escape);
        desk.openStatusMenu();
        desk.pressEquivalent(",", false);
        desk.advance(1s);
    }

    void check() {
        hand.clickControl("Check for Updates…");
        desk.advance(UntilTheCheckIsOver);
    }

    // The window in front is the first.
    WindowPicture front() {
        const DeskPicture picture = pictureOf(desk);
        return picture.windows.empty() ? WindowPicture{} : picture.windows.front();
    }
    WindowPicture settings() {
        const DeskPicture picture = pictureOf(desk);
        const WindowPicture* const window = windowTitled(picture, "Kestrune Settings");
        return window != nullptr ? *window : WindowPicture{};
    }

    sim::Updates& updates() { return desk.session().updates(); }

    Stage stage{std::get<LiveDeskSetup>(setupOf({}))};
    LiveDesk& desk = stage.desk();
    HandOnTheStage hand{stage};
};

TEST_F(UpdatesOnTheDesk, ShowTheCheckAndLetItBeCancelled) {
    hand.clickControl("Check for Updates…");
    EXPECT_EQ(front().title, "Updating Kestrune");
    // The check is over before a hand would be there.
    const std::vector<ui::Element> elements = front().scene.elements;
    for (std::size_t element = 0; element < elements.size(); ++element) {
        if (titleOfControl(elements[element]) == "Cancel") {
            const DeskTarget cancel = DeskTarget::control(front().number, element);
            desk.pressButton(cancel);
            desk.releaseButton(cancel);
            break;
        }
    }
    EXPECT_EQ(front().title, "Kestrune Settings");
    desk.advance(UntilTheCheckIsOver);
    EXPECT_FALSE(updates().isShowingAlert());
}

TEST_F(UpdatesOnTheDesk, SayThatThereIsNothingNewUntilReturnIsPressed) {
    check();
    ASSERT_TRUE(updates().isShowingAlert());
    EXPECT_EQ(desk.news().text, "The updater tells that there is nothing new");
    EXPECT_TRUE(front().isKey);
    EXPECT_EQ(front().title, "");
    desk.navigate(NavigationKey::enter);
    EXPECT_FALSE(updates().isShowingAlert());
    EXPECT_EQ(desk.news().text, "The alert is closed");
    desk.advance(1s);
    EXPECT_EQ(front().title, "Kestrune Settings");
    EXPECT_TRUE(front().isKey);
}

TEST_F(UpdatesOnTheDesk, KeepClicksAwayFromOtherWindowsWhileAnAlertIsOpen) {
    check();
    ASSERT_TRUE(updates().isShowingAlert());
    const std::size_t alert = front().number;
    hand.clickControl("Launch at login");
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::notRegistered);
    EXPECT_FALSE(settings().movingSwitch);
    hand.click(DeskTarget::closeButton(settings().number));
    EXPECT_EQ(settings().title, "Kestrune Settings");
    hand.click(DeskTarget::titleBar(settings().number));
    EXPECT_EQ(front().number, alert);
    EXPECT_TRUE(front().isKey);
    // From another application a click brings the alert forward.
    desk.session().user().switchAway();
    desk.pressButton(DeskTarget::ofWindow(settings().number));
    desk.releaseButton(DeskTarget::ofWindow(settings().number));
    EXPECT_TRUE(front().isKey);
    EXPECT_EQ(front().number, alert);
    hand.clickControl("OK");
    hand.clickControl("Launch at login");
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::enabled);
}

TEST_F(UpdatesOnTheDesk, ShowANewVersionUntilEscapeIsPressed) {
    desk.changeUpdateFeed();
    EXPECT_EQ(desk.news().text, "The update feed has a new version");
    check();
    EXPECT_EQ(front().title, "Software Update");
    EXPECT_EQ(desk.news().text, "The updater shows a new version");
    // No modal alert: the other window can be used.
    hand.clickControl("Launch at login");
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::enabled);
    hand.click(DeskTarget::titleBar(front().number));
    desk.navigate(NavigationKey::escape);
    EXPECT_FALSE(updates().isShowingUpdate());
    desk.advance(1s);
    EXPECT_EQ(pictureOf(desk).windows.size(), 1U);
}

TEST_F(UpdatesOnTheDesk, FloatTheirWindowInFrontOfTheDialog) {
    desk.changeUpdateFeed();
    check();
    desk.session().accessibility().askUser();
    EXPECT_THAT(windowTitlesOn(desk),
                ElementsAre("Software Update", "Accessibility Access (Events)", "Kestrune Settings"));
    EXPECT_EQ(iconsIn(front()), std::vector{desk.session().bundle().images.at("AppIcon")});
    hand.clickControl("Skip This Version");
    EXPECT_FALSE(updates().isShowingUpdate());
}

TEST_F(UpdatesOnTheDesk, SayThatTheFeedCannotBeReached) {
    desk.changeUpdateFeed();
    desk.changeUpdateFeed();
    EXPECT_EQ(desk.news().text, "The update feed cannot be reached");
    check();
    EXPECT_EQ(desk.news().text, "The updater tells that the feed cannot be reached");
    hand.clickControl("OK");
    desk.changeUpdateFeed();
    EXPECT_EQ(desk.news().text, "The update feed has nothing new");
    check();
    EXPECT_EQ(desk.news().text, "The updater tells that there is nothing new");
}

TEST_F(UpdatesOnTheDesk, ComeByThemselvesWhenAScheduledCheckFindsANewVersion) {
    hand.click(DeskTarget::closeButton(settings().number));
    desk.letScheduledCheckCome();
    EXPECT_EQ(desk.news().text, "The updater checks the feed by itself and finds nothing to show");
    desk.advance(UntilTheCheckIsOver);
    EXPECT_TRUE(pictureOf(desk).windows.empty());
    desk.changeUpdateFeed();
    desk.letScheduledCheckCome();
    EXPECT_EQ(desk.news().text, "The updater checks the feed by itself");
    desk.advance(UntilTheCheckIsOver);
    EXPECT_EQ(front().title, "Software Update");
    EXPECT_FALSE(pictureOf(desk).mainMenuTitles.empty());
    hand.clickControl("Remind Me Later");
    desk.advance(1s);
    EXPECT_TRUE(pictureOf(desk).windows.empty());
    EXPECT_TRUE(pictureOf(desk).mainMenuTitles.empty());
}

TEST_F(UpdatesOnTheDesk, ComeNotWhileTheApplicationDoesNotRun) {
    desk.changeUpdateFeed();
    desk.quitOrLaunch();
    desk.letScheduledCheckCome();
    EXPECT_EQ(desk.news().text, "Kestrune does not run, and so does not check for updates");
    desk.advance(UntilTheCheckIsOver);
    EXPECT_TRUE(pictureOf(desk).windows.empty());
}

} // namespace
} // namespace kestrune::desk
