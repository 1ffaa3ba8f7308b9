#include "desk/paint/desk/DeskHitTest.h"

#include "desk/paint/mac/AlertLayout.h"
#include "desk/paint/mac/MenuLayout.h"
#include "desk/paint/mac/SettingsPaneLayout.h"
#include "desk/paint/mac/ToolTipPainter.h"
#include "tests/base/UnusualNumbers.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

class HitTest : public testing::Test {
protected:
    std::optional<DeskTarget> at(const DeskPicture& picture, Point place) {
        return hitTest_.targetAt(picture, place);
    }

    MenuLayout menu(const DeskPicture& picture) { return *menuLayout(measure_, picture); }
    AlertLayout dialog(const DeskPicture& picture) { return *alertLayout(measure_, picture); }
    SettingsPaneLayout pane(const DeskPicture& picture) { return *settingsPaneLayout(picture); }

    DeskHitTest hitTest_;
    TextMeasure measure_;
};

TEST_F(HitTest, FindsStatusItemsAndTitlesOnEachDisplay) {
    DeskPicture picture = withStatusItem();
    picture.statusItems.push_back(picture.statusItems.front());
    picture.mainMenuTitles = {"Kestrune", "Edit"};
    for (const std::size_t display : {0U, 1U}) {
        const MenuBarLayout bar = menuBarOf(picture, display);
        for (const std::size_t index : {0U, 1U}) {
            EXPECT_EQ(at(picture, centerOf(bar.statusItems[index].slot)),
                      DeskTarget(StatusItemTarget{display, index}));
            EXPECT_EQ(at(picture, centerOf(bar.titles[index])),
                      DeskTarget(MainMenuTitleTarget{display, index}));
        }
        EXPECT_FALSE(at(picture, {bar.titles[1].maxX() + 20, bar.area.minY() + 5}));
        EXPECT_FALSE(at(picture, {bar.clock.x - 5, bar.clock.y}));
        EXPECT_FALSE(at(picture, bar.mark));
    }
}

TEST_F(HitTest, FindsNothingOnTheBareDesk) {
    const DeskPicture picture = withStatusItem();
    for (const Point place :
         {Point{300, 400}, Point{2000, -90}, Point{-50, 1e9}, Point{NotANumber, NotANumber}}) {
        EXPECT_FALSE(at(picture, place));
    }
}

TEST_F(HitTest, FindsEveryRowOfTheMenuAndItsMargins) {
    const DeskPicture picture = withMenu();
    const MenuLayout layout = menu(picture);
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        EXPECT_EQ(at(picture, centerOf(layout.rows[row])), DeskTarget(MenuRowTarget{row}));
    }
    EXPECT_EQ(at(picture, {layout.panel.minX() + 20, layout.panel.minY() + 1}),
              DeskTarget(MenuPanelTarget{}));
    EXPECT_EQ(at(picture, {layout.panel.minX() + 20, layout.panel.maxY() - 1}),
              DeskTarget(MenuPanelTarget{}));
    EXPECT_FALSE(at(picture, {layout.panel.minX() - 2, layout.panel.minY() + 40}));
    EXPECT_FALSE(at(picture, {layout.panel.minX() + 20, layout.panel.maxY() + 2}));
}

TEST_F(HitTest, FindsTheButtonsOfTheDialog) {
    const DeskPicture picture = withDialog();
    const AlertLayout layout = dialog(picture);
    EXPECT_EQ(at(picture, centerOf(layout.deny)), DeskTarget(DialogButtonTarget{DialogButton::deny}));
    EXPECT_EQ(at(picture, centerOf(layout.openSystemSettings)),
              DeskTarget(DialogButtonTarget{DialogButton::openSystemSettings}));
    for (const Rect& part : {layout.message, layout.icon, layout.titleBar, layout.information}) {
        EXPECT_EQ(at(picture, centerOf(part)), DeskTarget(DialogTarget{}));
    }
    EXPECT_FALSE(at(picture, {layout.frame.minX() + 20, layout.frame.maxY() + 1}));
}

TEST_F(HitTest, FindsThePartsOfThePane) {
    DeskPicture picture = withPane();
    const SettingsPaneLayout layout = pane(picture);
    for (const std::size_t row : {0U, 1U}) {
        EXPECT_EQ(at(picture, centerOf(layout.rows[row].toggle)), DeskTarget(PaneSwitchTarget{row}));
        EXPECT_EQ(at(picture, centerOf(layout.rows[row].area)), DeskTarget(PaneRowTarget{row}));
    }
    EXPECT_EQ(at(picture, centerOf(layout.closeButton)), DeskTarget(PaneCloseTarget{}));
    EXPECT_EQ(at(picture, centerOf(layout.addButton)), DeskTarget(PaneTarget{}));
    EXPECT_EQ(at(picture, centerOf(layout.sentence)), DeskTarget(PaneTarget{}));
    EXPECT_EQ(at(picture, centerOf(layout.removeButton)), DeskTarget(PaneTarget{}));
    picture.settingsPane->rows[0].selected = true;
    EXPECT_EQ(at(picture, centerOf(layout.removeButton)), DeskTarget(PaneRemoveTarget{}));
    EXPECT_FALSE(at(picture, {layout.frame.minX() - 1, layout.frame.minY() + 60}));
}

TEST_F(HitTest, PrefersTheMenuToTheDialogToThePaneToTheMenuBar) {
    DeskPicture picture = withPane();
    picture.menu = withMenu().menu;
    picture.menu->display = 0;
    picture.mainMenuTitles = {"Kestrune"};
    picture.menu->anchor = MainMenuTitleAnchor{0};
    picture.menu->rows.assign(30, {.title = std::string(120, 'm')});
    picture.permissionDialog = withDialog().permissionDialog;
    picture.permissionDialog->display = 0;

    const MenuLayout menuPlace = menu(picture);
    const AlertLayout dialogPlace = dialog(picture);
    const Point shared = centerOf(dialogPlace.deny);
    ASSERT_TRUE(menuPlace.panel.contains(shared));
    ASSERT_TRUE(pane(picture).frame.contains(shared));
    EXPECT_TRUE(std::holds_alternative<MenuRowTarget>(*at(picture, shared)));
    picture.menu.reset();
    EXPECT_EQ(at(picture, shared), DeskTarget(DialogButtonTarget{DialogButton::deny}));
    picture.permissionDialog.reset();
    EXPECT_TRUE(std::holds_alternative<PaneRowTarget>(*at(picture, shared)) ||
                std::holds_alternative<PaneSwitchTarget>(*at(picture, shared)) ||
                std::holds_alternative<PaneTarget>(*at(picture, shared)));
    picture.settingsPane.reset();
    EXPECT_FALSE(at(picture, shared));
}

TEST_F(HitTest, LetsToolTipsThrough) {
    DeskPicture picture = withPane();
    picture.settingsPane->rows.assign(9, {.name = "Application", .iconPath = std::nullopt});
    picture.toolTip = ToolTipPicture{0, 0, "Kestrune"};
    const std::optional<Rect> tip = toolTipArea(measure_, picture);
    ASSERT_TRUE(tip);
    const std::optional<DeskTarget> covered = at(picture, centerOf(*tip));
    picture.toolTip.reset();
    EXPECT_EQ(at(picture, centerOf(*tip)), covered);
}

class AreaOf : public HitTest {
protected:
    std::optional<Rect> areaOf(const DeskPicture& picture, const DeskTarget& target) {
        return hitTest_.areaOf(picture, target);
    }

    // Whether the part is found where it is said to be.
    void expectFound(const DeskPicture& picture, const DeskTarget& target) {
        const std::optional<Rect> area = areaOf(picture, target);
        ASSERT_TRUE(area) << target.index();
        EXPECT_GT(area->width(), 4);
        EXPECT_GT(area->height(), 4);
        EXPECT_EQ(at(picture, centerOf(*area)), target) << target.index();
    }
};

TEST_F(AreaOf, IsWhereTheStatusItemsAndTitlesAreFound) {
    DeskPicture picture = withStatusItem();
    picture.statusItems.push_back(picture.statusItems.front());
    picture.mainMenuTitles = {"Kestrune", "Edit"};
    for (const std::size_t display : {0U, 1U}) {
        for (const std::size_t index : {0U, 1U}) {
            expectFound(picture, StatusItemTarget{display, index});
            expectFound(picture, MainMenuTitleTarget{display, index});
        }
    }
}

TEST_F(AreaOf, IsWhereEveryRowOfTheMenuIsFound) {
    const DeskPicture picture = withMenu();
    for (std::size_t row = 0; row < picture.menu->rows.size(); ++row) {
        expectFound(picture, MenuRowTarget{row});
    }
}

TEST_F(AreaOf, IsWhereTheControlsOfDialogAndPaneAreFound) {
    expectFound(withDialog(), DialogButtonTarget{DialogButton::deny});
    expectFound(withDialog(), DialogButtonTarget{DialogButton::openSystemSettings});
    DeskPicture picture = withPane();
    picture.settingsPane->rows[1].selected = true;
    for (const std::size_t row : {0U, 1U}) {
        expectFound(picture, PaneSwitchTarget{row});
        expectFound(picture, PaneRowTarget{row});
    }
    expectFound(picture, PaneCloseTarget{});
    expectFound(picture, PaneRemoveTarget{});
}

TEST_F(AreaOf, IsAbsentForWhatThePictureDoesNotHave) {
    const DeskTarget elsewhere[] = {StatusItemTarget{0, 1},    StatusItemTarget{9, 0},
                                    MainMenuTitleTarget{0, 0}, MainMenuTitleTarget{9, 0},
                                    MenuRowTarget{0},          DialogButtonTarget{DialogButton::deny},
                                    PaneSwitchTarget{0},       PaneRowTarget{0},
                                    PaneCloseTarget{},         PaneRemoveTarget{}};
    for (const DeskTarget& target : elsewhere) {
        EXPECT_FALSE(areaOf(withStatusItem(), target)) << target.index();
    }
    EXPECT_FALSE(areaOf(withMenu(), MenuRowTarget{6}));
    EXPECT_FALSE(areaOf(withPane(), PaneSwitchTarget{2}));
    EXPECT_FALSE(areaOf(withPane(), PaneRowTarget{2}));
}

TEST_F(AreaOf, IsAbsentForWhatLiesAroundOtherParts) {
    EXPECT_FALSE(areaOf(withMenu(), MenuPanelTarget{}));
    EXPECT_FALSE(areaOf(withDialog(), DialogTarget{}));
    EXPECT_FALSE(areaOf(withPane(), PaneTarget{}));
}

// Without a selected row the button is there and cannot be pressed; nobody should be led to it.
TEST_F(AreaOf, IsAbsentForAButtonThatCannotBePressed) {
    EXPECT_FALSE(areaOf(withPane(), PaneRemoveTarget{}));
}

// A bar or a menu that is cut off leaves its last parts without a place.
TEST_F(AreaOf, IsAbsentForPartsWithoutRoom) {
    DeskPicture picture = withMenu();
    picture.menu->rows.assign(80, {.title = "Row"});
    const MenuLayout layout = menu(picture);
    ASSERT_TRUE(layout.rows.back().isNull());
    EXPECT_FALSE(areaOf(picture, MenuRowTarget{79}));

    DeskPicture crowded = withStatusItem();
    crowded.statusItems.assign(60, crowded.statusItems.front());
    ASSERT_TRUE(menuBarOf(crowded, 0).statusItems.front().slot.isNull());
    EXPECT_FALSE(areaOf(crowded, StatusItemTarget{0, 0}));
}

TEST_F(HitTest, FindsNoTitlesOfTheFinder) {
    const DeskPicture picture = withStatusItem();
    EXPECT_FALSE(at(picture, centerOf(menuBarOf(picture, 0).titles[1])));
    EXPECT_FALSE(hitTest_.areaOf(picture, MainMenuTitleTarget{0, 1}));
}

TEST_F(HitTest, FindsNothingOfAPartBeyondItsDisplay) {
    DeskPicture picture = withPane();
    picture.displays[0].bounds.size.width = 400;
    picture.displays[1].bounds.origin.x = 400;
    const Rect frame = pane(picture).frame;
    ASSERT_GT(frame.maxX(), 410);
    EXPECT_TRUE(at(picture, {395, frame.maxY() - 5}));
    EXPECT_FALSE(at(picture, {405, frame.maxY() - 5}));
}

TEST_F(HitTest, AgreesWithWhatIsPaintedAtEveryResolution) {
    DeskPicture picture = withMenu();
    picture.menu->rows[4].highlighted = true;
    DeskPicture plain = picture;
    plain.menu->rows[4].highlighted = false;
    for (const double scale : {1.0, 1.5, 2.0}) {
        const std::optional<Rect> row = differenceOf(CloseUp{picture, scale}, CloseUp{plain, scale});
        ASSERT_TRUE(row);
        EXPECT_EQ(at(picture, {row->minX() + 8, row->minY() + 1}), DeskTarget(MenuRowTarget{4})) << scale;
        EXPECT_EQ(at(picture, {row->maxX() - 8, row->maxY() - 1}), DeskTarget(MenuRowTarget{4})) << scale;
    }
}

TEST_F(HitTest, KnowsWhatIsOpen) {
    DeskPicture picture = withStatusItem();
    EXPECT_FALSE(hitTest_.openParts(picture));
    picture = withPane();
    EXPECT_EQ(hitTest_.openParts(picture), pane(picture).frame);
    picture.permissionDialog = withDialog().permissionDialog;
    const Rect both = *hitTest_.openParts(picture);
    EXPECT_TRUE(encloses(both, pane(picture).frame));
    EXPECT_TRUE(encloses(both, dialog(picture).frame));
    EXPECT_EQ(both, unionOf(pane(picture).frame, dialog(picture).frame));
    picture.toolTip = ToolTipPicture{0, 0, "Kestrune"};
    EXPECT_EQ(hitTest_.openParts(picture), toolTipArea(measure_, picture));
    picture.menu = withMenu().menu;
    EXPECT_EQ(hitTest_.openParts(picture), menu(picture).panel);
}

} // namespace
} // namespace kestrune::desk
