#include "desk/paint/mac/AlertLayout.h"
#include "desk/paint/mac/SettingsPaneLayout.h"
#include "desk/paint/mac/ToolTipPainter.h"
#include "tests/base/Overlap.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

AlertLayout dialogOf(const DeskPicture& picture) {
    TextMeasure measure;
    return *alertLayout(measure, picture);
}

SettingsPaneLayout paneOf(const DeskPicture& picture) { return *settingsPaneLayout(picture); }

std::optional<Rect> toolTipOf(const DeskPicture& picture) {
    TextMeasure measure;
    return toolTipArea(measure, picture);
}

TEST(PermissionDialog, HoldsItsPartsApartFromEachOther) {
    DeskPicture picture = withDialog();
    for (const char* const name : {"Kestrune", "", "An application with a very long name indeed, and more"}) {
        picture.permissionDialog->applicationName = name;
        const AlertLayout dialog = dialogOf(picture);
        const std::vector<Rect> parts{dialog.titleBar,    dialog.icon, dialog.message,
                                      dialog.information, dialog.deny, dialog.openSystemSettings};
        for (std::size_t first = 0; first < parts.size(); ++first) {
            EXPECT_TRUE(encloses(dialog.frame, parts[first])) << name << first;
            for (std::size_t second = first + 1; second < parts.size(); ++second) {
                EXPECT_FALSE(overlap(parts[first], parts[second])) << name << first << second;
            }
        }
        EXPECT_LT(dialog.openSystemSettings.maxX(), dialog.deny.minX());
    }
}

TEST(PermissionDialog, GrowsWithItsTextButNotWithoutEnd) {
    DeskPicture picture = withDialog();
    const double usual = dialogOf(picture).frame.height();
    picture.permissionDialog->applicationName = std::string(2000, 'n');
    const double tallest = dialogOf(picture).frame.height();
    EXPECT_GT(tallest, usual);
    EXPECT_LT(tallest, usual + 60);
}

TEST(PermissionDialog, StandsABitAboveTheMiddleOfItsDisplay) {
    DeskPicture picture = withDialog();
    for (const std::size_t display : {0U, 1U}) {
        picture.permissionDialog->display = display;
        const Point middle = centerOf(picture.displays[display].bounds);
        const Point center = centerOf(dialogOf(picture).frame);
        EXPECT_NEAR(center.x, middle.x, 1);
        EXPECT_LT(center.y, middle.y - 20);
        EXPECT_GT(center.y, middle.y - 120);
    }
}

TEST(PermissionDialog, HasDenyInTheAccentColour) {
    const DeskPicture picture = withDialog();
    const AlertLayout dialog = dialogOf(picture);
    const CloseUp painted{picture};
    const Pixel deny = painted.at({dialog.deny.minX() + 6, dialog.deny.maxY() - 5});
    EXPECT_GT(deny.blue, deny.red + 80);
    const Pixel open =
        painted.at({dialog.openSystemSettings.minX() + 6, dialog.openSystemSettings.maxY() - 5});
    EXPECT_GT(open.red, 240);
}

TEST(PermissionDialog, DarkensThePressedButtonOnly) {
    DeskPicture picture = withDialog();
    const AlertLayout dialog = dialogOf(picture);
    const CloseUp released{picture};
    picture.pressed = DialogButtonTarget{DialogButton::deny};
    std::optional<Rect> changed = differenceOf(CloseUp{picture}, released);
    ASSERT_TRUE(changed);
    EXPECT_TRUE(encloses(dialog.deny, *changed, 1));
    picture.pressed = DialogButtonTarget{DialogButton::openSystemSettings};
    changed = differenceOf(CloseUp{picture}, released);
    ASSERT_TRUE(changed);
    EXPECT_TRUE(encloses(dialog.openSystemSettings, *changed, 1));
    picture.pressed = PaneCloseTarget{};
    EXPECT_FALSE(differenceOf(CloseUp{picture}, released));
}

TEST(PermissionDialog, ShowsTheApplicationsIconOrAGeneralOne) {
    const IconFile icon{rgb(0x00FF00)};
    DeskPicture picture = withDialog();
    const Point center = centerOf(dialogOf(picture).icon);
    const CloseUp general{picture};
    picture.permissionDialog->iconPath = "/no/such/icon.png";
    EXPECT_FALSE(differenceOf(CloseUp{picture}, general));
    picture.permissionDialog->iconPath = icon.path();
    EXPECT_TRUE(isNear(CloseUp{picture}.at(center), 0, 255, 0, 4));
}

TEST(SettingsPane, ListsEachApplicationWithItsSwitch) {
    const DeskPicture picture = withPane();
    const SettingsPaneLayout pane = paneOf(picture);
    ASSERT_EQ(pane.rows.size(), 2U);
    EXPECT_TRUE(encloses(pane.frame, pane.box));
    EXPECT_TRUE(encloses(pane.titleBar, pane.closeButton));
    for (const PaneRowPlace& row : pane.rows) {
        EXPECT_TRUE(encloses(pane.list, row.area));
        EXPECT_TRUE(encloses(row.area, row.icon));
        EXPECT_TRUE(encloses(row.area, row.toggle));
        EXPECT_LT(row.icon.maxX(), row.toggle.minX());
    }
    EXPECT_EQ(pane.rows[0].area.maxY(), pane.rows[1].area.minY());
    EXPECT_GE(pane.removeButton.minY(), pane.list.maxY());
    EXPECT_LE(pane.addButton.maxX(), pane.removeButton.minX());
    EXPECT_TRUE(encloses(pane.box, pane.removeButton));
}

TEST(SettingsPane, ShowsWhichSwitchesAreOn) {
    const DeskPicture picture = withPane();
    const SettingsPaneLayout pane = paneOf(picture);
    const CloseUp painted{picture};
    // The half of the switch that its knob leaves free.
    const auto track = [&](std::size_t row, double part) {
        const Rect& toggle = pane.rows[row].toggle;
        return painted.at({toggle.minX() + toggle.width() * part, toggle.minY() + toggle.height() / 2});
    };
    EXPECT_GT(track(0, 0.25).blue, track(0, 0.25).red + 80);
    EXPECT_LT(std::abs(track(1, 0.8).blue - track(1, 0.8).red), 12);
    EXPECT_TRUE(isNear(track(0, 0.72), 255, 255, 255, 4));
    EXPECT_TRUE(isNear(track(1, 0.28), 255, 255, 255, 4));
}

TEST(SettingsPane, EnablesRemovingOnlyWithASelectedRow) {
    DeskPicture picture = withPane();
    EXPECT_FALSE(canRemove(*picture.settingsPane));
    const Rect minus = paneOf(picture).removeButton;
    const auto darkest = [&] { return CloseUp{picture}.darkest(minus); };
    const int disabled = darkest();
    picture.settingsPane->rows[1].selected = true;
    EXPECT_TRUE(canRemove(*picture.settingsPane));
    EXPECT_LT(darkest(), disabled - 60);
}

TEST(SettingsPane, ShowsWhatIsHeldDown) {
    DeskPicture picture = withPane();
    picture.settingsPane->rows[0].selected = true;
    const SettingsPaneLayout pane = paneOf(picture);
    const CloseUp released{picture};
    const std::vector<std::pair<DeskTarget, Rect>> parts{{PaneSwitchTarget{1}, pane.rows[1].toggle},
                                                         {PaneCloseTarget{}, pane.closeButton},
                                                         {PaneRemoveTarget{}, pane.removeButton}};
    for (std::size_t index = 0; index < parts.size(); ++index) {
        picture.pressed = parts[index].first;
        const std::optional<Rect> changed = differenceOf(CloseUp{picture}, released);
        ASSERT_TRUE(changed) << index;
        EXPECT_TRUE(encloses(parts[index].second, *changed, 1)) << index;
    }
}

TEST(SettingsPane, SaysThatItsListIsEmpty) {
    DeskPicture picture = withPane();
    picture.settingsPane->rows.clear();
    const SettingsPaneLayout pane = paneOf(picture);
    EXPECT_TRUE(pane.rows.empty());
    const Point middle = centerOf(pane.list);
    EXPECT_GT(CloseUp{picture}.count({middle.x - 40, middle.y - 8, 80, 16},
                                     [](Pixel pixel) { return pixel.red < 190; }),
              30);
}

TEST(SystemWindows, StayOnTheirDisplay) {
    DeskPicture picture = withDialog();
    picture.settingsPane = withPane().settingsPane;
    for (const std::size_t rows : {0U, 2U, 80U}) {
        picture.settingsPane->rows.assign(rows, {.name = "Application", .iconPath = std::nullopt});
        for (const std::size_t display : {0U, 1U}) {
            picture.permissionDialog->display = display;
            picture.settingsPane->display = display;
            const Rect& bounds = picture.displays[display].bounds;
            EXPECT_TRUE(encloses(bounds, dialogOf(picture).frame));
            EXPECT_TRUE(encloses(bounds, paneOf(picture).frame)) << rows;
        }
    }
}

TEST(SystemWindows, AreAbsentFromADisplayThatIsNotThere) {
    DeskPicture picture = withDialog();
    picture.settingsPane = withPane().settingsPane;
    picture.permissionDialog->display = 2;
    picture.settingsPane->display = 2;
    TextMeasure measure;
    EXPECT_FALSE(alertLayout(measure, picture));
    EXPECT_FALSE(settingsPaneLayout(picture));
}

TEST(SystemWindows, HaveTheDialogInFrontOfThePane) {
    DeskPicture picture = withDialog();
    picture.permissionDialog->display = 0;
    const Point inDialog = centerOf(dialogOf(picture).deny);
    const Pixel alone = CloseUp{picture}.at(inDialog);
    picture.settingsPane = withPane().settingsPane;
    ASSERT_TRUE(paneOf(picture).frame.contains(inDialog));
    EXPECT_EQ(CloseUp{picture}.at(inDialog), alone);
}

TEST(ToolTip, StandsBelowItsStatusItemOnItsDisplay) {
    DeskPicture picture = withStatusItem();
    for (const char* const text :
         {"Kestrune", "A tool tip that has so much to tell that it cannot be shown"}) {
        for (const std::size_t display : {0U, 1U}) {
            picture.toolTip = ToolTipPicture{display, 0, text};
            const Rect slot = menuBarOf(picture, display).statusItems[0].slot;
            const std::optional<Rect> area = toolTipOf(picture);
            ASSERT_TRUE(area);
            EXPECT_GT(area->minY(), slot.maxY());
            EXPECT_TRUE(encloses(picture.displays[display].bounds, *area));
        }
    }
}

TEST(ToolTip, IsAbsentWithoutTextOrStatusItem) {
    DeskPicture picture = withStatusItem();
    picture.toolTip = ToolTipPicture{0, 0, ""};
    EXPECT_FALSE(toolTipOf(picture));
    picture.toolTip = ToolTipPicture{0, 1, "Kestrune"};
    EXPECT_FALSE(toolTipOf(picture));
    picture.toolTip = ToolTipPicture{4, 0, "Kestrune"};
    EXPECT_FALSE(toolTipOf(picture));
}

} // namespace
} // namespace kestrune::desk
