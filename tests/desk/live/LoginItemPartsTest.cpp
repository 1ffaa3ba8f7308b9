// The application among the system's login items: its switch in Settings, and the user in System Settings.

#include "tests/desk/live/SettingsOnTheDesk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>

namespace kestrune::desk {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* LoginItemsTitle = "Login Items";

class LoginItemsOnTheDesk : public SettingsOnTheDesk {
protected:
    // The switch of the application's row in System Settings; absent without a row.
    std::optional<bool> isOn() { return kestrune::desk::isSwitchOn(picture(), "Kestrune"); }
};

TEST_F(LoginItemsOnTheDesk, ShowLaunchAtLoginAmongTheLoginItems) {
    desk.openLoginItems();
    EXPECT_THAT(
        textsIn(window(LoginItemsTitle)),
        testing::IsSupersetOf({"These applications open automatically when you log in.", "No Items"}));
    open();
    hand.click(toggle());
    EXPECT_EQ(isOn(), true);
    hand.click(toggle());
    EXPECT_EQ(isOn(), std::nullopt);
}

TEST_F(LoginItemsOnTheDesk, RevokeAndAllowTheLoginItem) {
    desk.session().user().setLoginItem(AppServiceStatus::enabled);
    desk.openLoginItems();
    hand.clickControl("Kestrune");
    EXPECT_EQ(loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_EQ(desk.news().text, "Kestrune may not open at login until System Settings allows it");
    EXPECT_EQ(isOn(), false);
    open();
    EXPECT_FALSE(isSwitchOn()) << "what waits for approval counts as off";
    hand.clickControl("Kestrune");
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
    hand.clickControl("Select Kestrune");
    hand.clickControl("Remove");
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
    EXPECT_EQ(isOn(), std::nullopt);
    hand.closeWindow(LoginItemsTitle);
    EXPECT_FALSE(isOpen(LoginItemsTitle));
    EXPECT_FALSE(hand.missing()) << *hand.missing();
    EXPECT_TRUE(window().isKey);
}

TEST_F(LoginItemsOnTheDesk, LetOnlyTheUserAllowWhatTheUserRevoked) {
    desk.session().user().setLoginItem(AppServiceStatus::enabled);
    desk.openLoginItems();
    hand.clickControl("Kestrune");
    open();
    hand.click(toggle());
    desk.advance(1s);
    EXPECT_TRUE(isSwitchOn()) << "the switch stays where the user put it";
    EXPECT_EQ(loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_EQ(isOn(), false);
    reopen();
    EXPECT_FALSE(isSwitchOn());
    hand.clickControl("Kestrune");
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
    EXPECT_FALSE(isSwitchOn()) << "Settings look when they are opened";
    reopen();
    EXPECT_TRUE(isSwitchOn());
}

TEST_F(LoginItemsOnTheDesk, RegisterAnItemThatWaitsForApproval) {
    desk.changeLoginApproval();
    desk.openLoginItems();
    open();
    hand.click(toggle());
    desk.advance(1s);
    EXPECT_TRUE(isSwitchOn());
    EXPECT_EQ(loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_EQ(desk.news().text, "Kestrune may not open at login until System Settings allows it");
    EXPECT_EQ(isOn(), false);
    reopen();
    EXPECT_FALSE(isSwitchOn());
    hand.clickControl("Kestrune");
    reopen();
    EXPECT_TRUE(isSwitchOn());

    desk.changeLoginApproval();
    EXPECT_EQ(desk.news().text, "From now on a new login item is allowed at once");
    hand.click(toggle());
    hand.click(toggle());
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
}

TEST_F(LoginItemsOnTheDesk, ShowOnePaneOfSystemSettingsAtATime) {
    desk.session().user().openPane();
    desk.openLoginItems();
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre(LoginItemsTitle));
    EXPECT_FALSE(desk.session().accessibility().isPaneShown());
    desk.session().user().openPane();
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre("Accessibility"));
    hand.closeWindow("Accessibility");
    EXPECT_THAT(windowTitlesOn(desk), IsEmpty());
}

} // namespace
} // namespace kestrune::desk
