#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/mac/Menu.h"
#include "tests/base/UnusualNumbers.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

class HitTest : public testing::Test {
protected:
    std::optional<DeskTarget> at(const DeskPicture& picture, Point place) {
        return hitTest_.targetAt(picture, place);
    }

    MenuLayout menu(const DeskPicture& picture) { return *menuLayout(measure_, picture); }

    DeskHitTest hitTest_;
    TextPainter measure_;
};

TEST_F(HitTest, FindsStatusItemsAndTitlesOnEachDisplay) {
    DeskPicture picture = withStatusItem();
    picture.statusItems.push_back(picture.statusItems.front());
    picture.mainMenuTitles = {"Kestrune", "Edit"};
    for (const std::size_t display : {0U, 1U}) {
        const MenuBarLayout bar = menuBarOf(picture, display);
        for (const std::size_t index : {0U, 1U}) {
            EXPECT_EQ(at(picture, centerOf(bar.statusItems[index].slot)),
                      DeskTarget::statusItem(display, index));
            EXPECT_EQ(at(picture, centerOf(bar.titles[index])), DeskTarget::mainMenuTitle(display, index));
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
        EXPECT_EQ(at(picture, centerOf(layout.rows[row])), DeskTarget::menuRow(row));
    }
    EXPECT_EQ(at(picture, {layout.panel.minX() + 20, layout.panel.minY() + 1}), DeskTarget::menuPanel());
    EXPECT_EQ(at(picture, {layout.panel.minX() + 20, layout.panel.maxY() - 1}), DeskTarget::menuPanel());
    EXPECT_FALSE(at(picture, {layout.panel.minX() - 2, layout.panel.minY() + 40}));
    EXPECT_FALSE(at(picture, {layout.panel.minX() + 20, layout.panel.maxY() + 2}));
}

TEST_F(HitTest, PrefersTheMenuToTheMenuBarToTheFirstWindowToTheSecond) {
    DeskPicture picture = withWindow();
    picture.windows.push_back(windowWithControls());
    picture.windows[1].number = 8;
    picture.menu = withMenu().menu;
    picture.menu->display = 0;
    picture.mainMenuTitles = {"Kestrune"};
    picture.menu->anchor = MainMenuTitleAnchor{0};
    picture.menu->rows.assign(30, {.title = std::string(120, 'm')});

    const MenuLayout menuPlace = menu(picture);
    const Point shared{700, 500};
    ASSERT_TRUE(menuPlace.panel.contains(shared));
    EXPECT_EQ(at(picture, shared)->kind, DeskTarget::Kind::menuRow);
    picture.menu.reset();
    EXPECT_EQ(at(picture, shared)->window, 7U);
    picture.windows.erase(picture.windows.begin());
    EXPECT_EQ(at(picture, shared)->window, 8U);
    picture.windows[0].frame.origin.y = 0;
    EXPECT_FALSE(at(picture, {800, 10})) << "the menu bar is there";
    picture.windows.clear();
    EXPECT_FALSE(at(picture, shared));
}

TEST_F(HitTest, LetsToolTipsThrough) {
    DeskPicture picture = withWindow();
    picture.toolTip = ToolTipPicture{0, 0, "Kestrune"};
    const std::optional<Rect> tip = toolTipArea(measure_, picture);
    ASSERT_TRUE(tip);
    picture.windows[0].frame.origin = {tip->minX() - 10, tip->minY() - 40};
    const std::optional<DeskTarget> covered = at(picture, centerOf(*tip));
    ASSERT_TRUE(covered);
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
        ASSERT_TRUE(area) << static_cast<int>(target.kind);
        EXPECT_GT(area->width(), 4);
        EXPECT_GT(area->height(), 4);
        EXPECT_EQ(at(picture, centerOf(*area)), target) << static_cast<int>(target.kind);
    }
};

TEST_F(AreaOf, IsWhereTheStatusItemsAndTitlesAreFound) {
    DeskPicture picture = withStatusItem();
    picture.statusItems.push_back(picture.statusItems.front());
    picture.mainMenuTitles = {"Kestrune", "Edit"};
    for (const std::size_t display : {0U, 1U}) {
        for (const std::size_t index : {0U, 1U}) {
            expectFound(picture, DeskTarget::statusItem(display, index));
            expectFound(picture, DeskTarget::mainMenuTitle(display, index));
        }
    }
}

TEST_F(AreaOf, IsWhereEveryRowOfTheMenuIsFound) {
    const DeskPicture picture = withMenu();
    for (std::size_t row = 0; row < picture.menu->rows.size(); ++row) {
        expectFound(picture, DeskTarget::menuRow(row));
    }
}

TEST_F(AreaOf, IsAbsentForWhatThePictureDoesNotHave) {
    const DeskTarget elsewhere[] = {DeskTarget::statusItem(0, 1),    DeskTarget::statusItem(9, 0),
                                    DeskTarget::mainMenuTitle(0, 0), DeskTarget::mainMenuTitle(9, 0),
                                    DeskTarget::menuRow(0),          DeskTarget::closeButton(0),
                                    DeskTarget::control(0, 0),       DeskTarget::dockTile(0)};
    for (const DeskTarget& target : elsewhere) {
        EXPECT_FALSE(areaOf(withStatusItem(), target)) << static_cast<int>(target.kind);
    }
    EXPECT_FALSE(areaOf(withMenu(), DeskTarget::menuRow(6)));
}

TEST_F(AreaOf, IsAbsentForWhatLiesAroundOtherParts) {
    EXPECT_FALSE(areaOf(withMenu(), DeskTarget::menuPanel()));
    EXPECT_FALSE(areaOf(withWindow(), DeskTarget::ofWindow(7)));
}

// A bar or a menu that is cut off leaves its last parts without a place.
TEST_F(AreaOf, IsAbsentForPartsWithoutRoom) {
    DeskPicture picture = withMenu();
    picture.menu->rows.assign(80, {.title = "Row"});
    const MenuLayout layout = menu(picture);
    ASSERT_TRUE(layout.rows.back().isNull());
    EXPECT_FALSE(areaOf(picture, DeskTarget::menuRow(79)));

    DeskPicture crowded = withStatusItem();
    crowded.statusItems.assign(60, crowded.statusItems.front());
    ASSERT_TRUE(menuBarOf(crowded, 0).statusItems.front().slot.isNull());
    EXPECT_FALSE(areaOf(crowded, DeskTarget::statusItem(0, 0)));
}

TEST_F(HitTest, FindsNoTitlesOfTheFinder) {
    const DeskPicture picture = withStatusItem();
    EXPECT_FALSE(at(picture, centerOf(menuBarOf(picture, 0).titles[1])));
    EXPECT_FALSE(hitTest_.areaOf(picture, DeskTarget::mainMenuTitle(0, 1)));
}

TEST_F(HitTest, FindsNothingOfAPartBeyondItsDisplay) {
    DeskPicture picture = withMenu();
    picture.menu->display = 7;
    for (const Point place : {Point{300, 40}, Point{2000, -60}}) {
        EXPECT_FALSE(at(picture, place));
    }
    picture.displays.resize(1);
    picture.menu->display = 1;
    EXPECT_FALSE(at(picture, {3000, -60}));
}

TEST_F(HitTest, AgreesWithWhatIsPaintedAtEveryResolution) {
    DeskPicture picture = withMenu();
    picture.menu->rows[4].highlighted = true;
    DeskPicture plain = picture;
    plain.menu->rows[4].highlighted = false;
    for (const double scale : {1.0, 1.5, 2.0}) {
        const std::optional<Rect> row = differenceOf(CloseUp{picture, scale}, CloseUp{plain, scale});
        ASSERT_TRUE(row);
        EXPECT_EQ(at(picture, {row->minX() + 8, row->minY() + 1}), DeskTarget::menuRow(4)) << scale;
        EXPECT_EQ(at(picture, {row->maxX() - 8, row->maxY() - 1}), DeskTarget::menuRow(4)) << scale;
    }
}

TEST_F(HitTest, KnowsWhatIsOpen) {
    DeskPicture picture = withStatusItem();
    EXPECT_FALSE(hitTest_.openParts(picture));
    picture = withWindow();
    EXPECT_EQ(hitTest_.openParts(picture), picture.windows[0].frame);
    picture.windows.push_back(windowWithControls());
    picture.windows[1].frame.origin = {1700, 100};
    const Rect both = *hitTest_.openParts(picture);
    EXPECT_EQ(both, unionOf(picture.windows[0].frame, picture.windows[1].frame));
    picture.toolTip = ToolTipPicture{0, 0, "Kestrune"};
    EXPECT_EQ(hitTest_.openParts(picture), toolTipArea(measure_, picture));
    picture.menu = withMenu().menu;
    EXPECT_EQ(hitTest_.openParts(picture), menu(picture).panel);
}

} // namespace
} // namespace kestrune::desk
