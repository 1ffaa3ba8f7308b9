// The application among the system's login items: its switch in Settings, and the user in System Settings.

#include "tests/desk/live/SettingsOnTheDesk.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kestrune::desk {
namespace {

using namespace std::chrono_literals;

class LoginItemsOnTheDesk : public SettingsOnTheDesk {};

TEST_F(LoginItemsOnTheDesk, ShowLaunchAtLoginAmongTheLoginItems) {
    desk.openLoginItems();
    ASSERT_TRUE(picture().settingsPane);
    EXPECT_EQ(picture().settingsPane->title, "Login Items");
    EXPECT_TRUE(picture().settingsPane->rows.empty());
    open();
    hand.click(toggle());
    ASSERT_EQ(picture().settingsPane->rows.size(), 1U);
    EXPECT_EQ(picture().settingsPane->rows[0].name, "Kestrune");
    EXPECT_TRUE(picture().settingsPane->rows[0].isOn);
    hand.click(toggle());
    EXPECT_TRUE(picture().settingsPane->rows.empty());
}

TEST_F(LoginItemsOnTheDesk, RevokeAndAllowTheLoginItem) {
    desk.session().loginItem().setStatus(AppServiceStatus::enabled);
    desk.openLoginItems();
    hand.click(PaneSwitchTarget{0});
    EXPECT_EQ(loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_EQ(desk.news().text, "Kestrune may not open at login until System Settings allows it");
    ASSERT_EQ(picture().settingsPane->rows.size(), 1U);
    EXPECT_FALSE(picture().settingsPane->rows[0].isOn);
    open();
    EXPECT_FALSE(isSwitchOn()) << "what waits for approval counts as off";
    hand.click(PaneSwitchTarget{0});
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
    hand.click(PaneRowTarget{0});
    EXPECT_TRUE(picture().settingsPane->rows[0].selected);
    hand.click(PaneRemoveTarget{});
    EXPECT_EQ(loginItem(), AppServiceStatus::notRegistered);
    EXPECT_TRUE(picture().settingsPane->rows.empty());
    hand.click(PaneCloseTarget{});
    EXPECT_FALSE(picture().settingsPane);
    EXPECT_TRUE(window().isKey);
}

TEST_F(LoginItemsOnTheDesk, LetOnlyTheUserAllowWhatTheUserRevoked) {
    desk.session().loginItem().setStatus(AppServiceStatus::enabled);
    desk.openLoginItems();
    hand.click(PaneSwitchTarget{0});
    open();
    hand.click(toggle());
    desk.advance(1s);
    EXPECT_TRUE(isSwitchOn()) << "the switch stays where the user put it";
    EXPECT_EQ(loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_FALSE(picture().settingsPane->rows.at(0).isOn);
    reopen();
    EXPECT_FALSE(isSwitchOn());
    hand.click(PaneSwitchTarget{0});
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
    ASSERT_EQ(picture().settingsPane->rows.size(), 1U);
    EXPECT_FALSE(picture().settingsPane->rows[0].isOn);
    reopen();
    EXPECT_FALSE(isSwitchOn());
    hand.click(PaneSwitchTarget{0});
    reopen();
    EXPECT_TRUE(isSwitchOn());

    desk.changeLoginApproval();
    EXPECT_EQ(desk.news().text, "From now on a new login item is allowed at once");
    hand.click(toggle());
    hand.click(toggle());
    EXPECT_EQ(loginItem(), AppServiceStatus::enabled);
}

TEST_F(LoginItemsOnTheDesk, ShowOnePaneOfSystemSettingsAtATime) {
    desk.session().accessibility().showPane();
    desk.openLoginItems();
    EXPECT_EQ(picture().settingsPane->title, "Login Items");
    EXPECT_FALSE(desk.session().accessibility().isPaneShown());
    desk.session().accessibility().showPane();
    EXPECT_EQ(picture().settingsPane->title, "Accessibility");
    hand.click(PaneCloseTarget{});
    EXPECT_FALSE(picture().settingsPane);
}

} // namespace
} // namespace kestrune::desk
