#include "tests/desk/live/PartsFixture.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

constexpr DialogButtonTarget OpenSettings{DialogButton::openSystemSettings};
constexpr DialogButtonTarget Deny{DialogButton::deny};

class PermissionDialog : public PartsFixture {
protected:
    PermissionDialog() { session.accessibility().askUser(); }
};

class SettingsPane : public PartsFixture {
protected:
    SettingsPane() { session.accessibility().showPane(); }

    sim::Permission permission() { return session.accessibility().permission(); }
};

TEST_F(PermissionDialog, ShowsOnThePrimaryDisplay) {
    ASSERT_TRUE(picture().permissionDialog);
    EXPECT_EQ(*picture().permissionDialog, (PermissionDialogPicture{0, "Kestrune", "icon.png", 28}));
    EXPECT_FALSE(picture().settingsPane);
}

TEST_F(PermissionDialog, LeadsToThePane) {
    click(OpenSettings);
    EXPECT_FALSE(picture().permissionDialog);
    EXPECT_TRUE(picture().settingsPane);
}

TEST_F(PermissionDialog, CanBeDenied) {
    click(Deny);
    EXPECT_FALSE(picture().permissionDialog);
    EXPECT_FALSE(picture().settingsPane);
}

TEST_F(PermissionDialog, ActsOnlyWhenTheButtonIsReleasedWhereItWasPressed) {
    parts.press(OpenSettings);
    EXPECT_EQ(picture().pressed, DeskTarget(OpenSettings));
    parts.release(Deny);
    EXPECT_FALSE(picture().pressed);
    parts.press(Deny);
    parts.release(std::nullopt);
    parts.press(std::nullopt);
    parts.release(Deny);
    parts.release(Deny);
    click(DialogTarget{});
    EXPECT_TRUE(picture().permissionDialog);
}

TEST_F(PermissionDialog, IsDeniedByReturnAndEscape) {
    for (const NavigationKey key : {NavigationKey::enter, NavigationKey::escape}) {
        session.accessibility().askUser();
        EXPECT_TRUE(parts.takesKeys());
        parts.press(NavigationKey::down);
        EXPECT_TRUE(picture().permissionDialog);
        parts.press(key);
        EXPECT_FALSE(picture().permissionDialog);
        EXPECT_FALSE(parts.takesKeys());
    }
}

TEST_F(PermissionDialog, LeavesTheKeysToAnOpenMenu) {
    parts.openStatusMenu(0);
    parts.press(NavigationKey::escape);
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_TRUE(picture().permissionDialog);
}

TEST_F(SettingsPane, ShowsBesideTheDialogWhereThereIsAnotherDisplay) {
    EXPECT_EQ(picture().settingsPane->display, 1U);
    session.changeDisplays({sim::makeDisplay(1, "One", {0, 0, 100, 100})});
    EXPECT_EQ(picture().settingsPane->display, 0U);
}

TEST_F(SettingsPane, ListsTheApplicationWithItsSwitch) {
    ASSERT_EQ(picture().settingsPane->rows.size(), 1U);
    EXPECT_EQ(picture().settingsPane->rows[0], (PaneRowPicture{"Kestrune", "icon.png", true, false}));
    session.accessibility().setPermission(sim::Permission::switchedOff);
    EXPECT_FALSE(picture().settingsPane->rows[0].isOn);
    session.accessibility().setPermission(sim::Permission::notListed);
    EXPECT_TRUE(picture().settingsPane->rows.empty());
}

TEST_F(SettingsPane, FlipsTheSwitchWithAClick) {
    click(PaneSwitchTarget{0});
    EXPECT_EQ(permission(), sim::Permission::switchedOff);
    click(PaneSwitchTarget{0});
    EXPECT_EQ(permission(), sim::Permission::granted);
    parts.press(PaneSwitchTarget{0});
    EXPECT_EQ(picture().pressed, DeskTarget(PaneSwitchTarget{0}));
    parts.release(PaneRowTarget{0});
    EXPECT_EQ(permission(), sim::Permission::granted);
    EXPECT_FALSE(picture().settingsPane->rows[0].selected);
}

TEST_F(SettingsPane, SelectsARowUntilAClickBesideIt) {
    click(PaneRowTarget{0});
    EXPECT_TRUE(picture().settingsPane->rows[0].selected);
    click(PaneTarget{});
    EXPECT_FALSE(picture().settingsPane->rows[0].selected);
}

TEST_F(SettingsPane, RemovesTheRow) {
    click(PaneRowTarget{0});
    click(PaneRemoveTarget{});
    EXPECT_TRUE(picture().settingsPane->rows.empty());
    EXPECT_EQ(permission(), sim::Permission::rowDeleted);
    session.accessibility().setPermission(sim::Permission::switchedOff);
    EXPECT_FALSE(picture().settingsPane->rows[0].selected) << "a new row is not the one that was chosen";
}

TEST_F(SettingsPane, ClosesAndForgetsTheSelection) {
    click(PaneRowTarget{0});
    click(PaneCloseTarget{});
    EXPECT_FALSE(picture().settingsPane);
    session.accessibility().showPane();
    EXPECT_FALSE(picture().settingsPane->rows[0].selected);
}

TEST_F(SettingsPane, TakesNoKeys) {
    EXPECT_FALSE(parts.takesKeys());
    parts.press(NavigationKey::escape);
    EXPECT_TRUE(picture().settingsPane);
}

} // namespace
} // namespace kestrune::desk
