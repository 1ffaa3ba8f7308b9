#include "desk/paint/mac/Menu.h"

#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

std::optional<MenuLayout> menuOf(const DeskPicture& picture) {
    TextPainter measure;
    return menuLayout(measure, picture);
}

bool isHighlightColored(Pixel pixel) {
    const Color accent = paletteFor(false).system.accent;
    return isNear(pixel, static_cast<int>(accent.red * 255), static_cast<int>(accent.green * 255),
                  static_cast<int>(accent.blue * 255), 4);
}

TEST(Menu, HangsBelowTheStatusItemOfItsDisplay) {
    DeskPicture picture = withMenu();
    for (const std::size_t display : {0U, 1U}) {
        picture.menu->display = display;
        const MenuBarLayout bar = menuBarOf(picture, display);
        const MenuLayout menu = *menuOf(picture);
        EXPECT_GE(menu.panel.minY(), bar.area.maxY());
        EXPECT_LE(menu.panel.minY(), bar.area.maxY() + 2);
        EXPECT_LE(menu.panel.minX(), bar.statusItems[0].slot.minX());
        EXPECT_GT(menu.panel.maxX(), bar.statusItems[0].slot.minX());
    }
}

TEST(Menu, HangsBelowATitleOfTheMainMenu) {
    DeskPicture picture = withMenu();
    picture.mainMenuTitles = {"Kestrune", "File"};
    picture.menu->anchor = MainMenuTitleAnchor{1};
    EXPECT_NEAR(menuOf(picture)->panel.minX(), menuBarOf(picture, 1).titles[1].minX(), 1);
}

TEST(Menu, IsAbsentWithoutAnythingToHangFrom) {
    DeskPicture picture = withMenu();
    EXPECT_TRUE(menuOf(picture));
    picture.menu->anchor = StatusItemAnchor{1};
    EXPECT_FALSE(menuOf(picture));
    picture.menu->anchor = MainMenuTitleAnchor{0};
    EXPECT_FALSE(menuOf(picture));
    picture.menu->anchor = StatusItemAnchor{0};
    picture.menu->display = 7;
    EXPECT_FALSE(menuOf(picture));
    picture.menu.reset();
    EXPECT_FALSE(menuOf(picture));
}

TEST(Menu, StacksItsRowsInsideThePanel) {
    const DeskPicture picture = withMenu();
    const MenuLayout menu = *menuOf(picture);
    ASSERT_EQ(menu.rows.size(), picture.menu->rows.size());
    for (std::size_t row = 0; row < menu.rows.size(); ++row) {
        EXPECT_TRUE(encloses(menu.panel, menu.rows[row]));
        if (row > 0) {
            EXPECT_EQ(menu.rows[row].minY(), menu.rows[row - 1].maxY());
        }
    }
    EXPECT_EQ(menu.rows[0].height(), 22);
    EXPECT_LT(menu.rows[1].height(), menu.rows[0].height());
    EXPECT_FALSE(menu.hasMore);
}

TEST(Menu, HasAColumnOfCheckMarksOnlyWhenARowIsMarked) {
    DeskPicture picture = withMenu();
    const MenuLayout plain = *menuOf(picture);
    picture.menu->rows[3].marked = true;
    const MenuLayout marked = *menuOf(picture);
    EXPECT_GT(marked.titleLeft - marked.panel.minX(), plain.titleLeft - plain.panel.minX() + 5);
    EXPECT_GE(marked.titleLeft - marked.checkLeft, 14);
    EXPECT_GT(marked.panel.width(), 0);

    DeskPicture unmarked = picture;
    unmarked.menu->rows[3].marked = false;
    unmarked.menu->rows[4].marked = true; // The column stays, so only the marks differ.
    const std::optional<Rect> marks = differenceOf(CloseUp{picture}, CloseUp{unmarked});
    ASSERT_TRUE(marks);
    EXPECT_LT(marks->maxX(), marked.titleLeft);
    EXPECT_TRUE(encloses(marked.panel, *marks));
}

TEST(Menu, MakesRoomForItsWidestTitleAndKeyEquivalent) {
    DeskPicture picture = withMenu();
    const double plain = menuOf(picture)->panel.width();
    picture.menu->rows[0].title = "A title that is a good deal longer than any of the others";
    const double withTitle = menuOf(picture)->panel.width();
    EXPECT_GT(withTitle, plain + 100);
    picture.menu->rows[5].keyEquivalent = "⇧⌘Q";
    EXPECT_GT(menuOf(picture)->panel.width(), withTitle + 30);
}

TEST(Menu, StaysOnItsDisplay) {
    DeskPicture picture = withMenu();
    for (const Size size : {Size{1512, 982}, Size{900, 600}, Size{300, 200}}) {
        for (const std::size_t display : {0U, 1U}) {
            Rect& bounds = picture.displays[display].bounds;
            bounds.size = size;
            picture.menu->display = display;
            for (const std::size_t rows : {1U, 6U, 60U}) {
                picture.menu->rows.assign(rows, {.title = std::string(rows > 6 ? 300 : 10, 'm')});
                const std::optional<MenuLayout> menu = menuOf(picture);
                ASSERT_TRUE(menu);
                EXPECT_TRUE(encloses(bounds, menu->panel)) << size.width << " " << rows;
                EXPECT_EQ(menu->hasMore, menu->rows.back().isNull());
                EXPECT_FALSE(menu->rows.front().isNull());
            }
        }
    }
}

TEST(Menu, IsToScale) {
    DeskPicture picture = withMenu();
    DeskPicture changed = picture;
    changed.menu->rows[4].highlighted = true;
    const DeskLayout desk = DeskLayout::of(picture, TestWindow);
    ASSERT_LT(desk.scale(), 0.4);
    const auto row =
        differenceOf(PaintedPicture{picture, TestWindow, 2}, PaintedPicture{changed, TestWindow, 2});
    ASSERT_TRUE(row);
    EXPECT_NEAR(row->height() / 2, 22 * desk.scale(), 1);
}

TEST(Menu, HighlightsEnabledRowsOnly) {
    DeskPicture picture = withMenu();
    const MenuLayout menu = *menuOf(picture);
    const CloseUp plain{picture};
    picture.menu->rows[2].highlighted = true;
    EXPECT_FALSE(differenceOf(CloseUp{picture}, plain));
    picture.menu->rows[4].highlighted = true;
    const CloseUp painted{picture};
    const std::optional<Rect> changed = differenceOf(painted, plain);
    ASSERT_TRUE(changed);
    EXPECT_TRUE(encloses(menu.rows[4], *changed, 1));
    const Rect row = menu.rows[4];
    EXPECT_TRUE(isHighlightColored(painted.at({row.maxX() - 12, row.minY() + row.height() / 2})));
    EXPECT_FALSE(isHighlightColored(painted.at({row.maxX() - 2, row.minY() + row.height() / 2})));
}

TEST(Menu, GreysDisabledRows) {
    DeskPicture picture = withMenu();
    const MenuLayout menu = *menuOf(picture);
    const auto darkest = [&](std::size_t row) { return CloseUp{picture}.darkest(menu.rows[row]); };
    EXPECT_GT(darkest(2), darkest(0) + 50);
    picture.menu->rows[2].enabled = true;
    EXPECT_LT(darkest(2), 90);
}

TEST(Menu, KeepsSpacesAtTheBeginningOfATitle) {
    DeskPicture picture = withMenu();
    picture.menu->rows = {{.title = "Left"}, {.title = "  Left"}};
    const MenuLayout menu = *menuOf(picture);
    const CloseUp painted{picture};
    const auto firstInk = [&](const Rect& row) {
        for (double x = menu.titleLeft - 2; x < row.maxX(); ++x) {
            if (painted.count({x, row.minY(), 1, row.height()}, [](Pixel pixel) { return pixel.red < 130; }) >
                0) {
                return x;
            }
        }
        return row.maxX();
    };
    EXPECT_GE(firstInk(menu.rows[1]), firstInk(menu.rows[0]) + 4);
    EXPECT_LE(firstInk(menu.rows[0]), menu.titleLeft + 3);
}

} // namespace
} // namespace kestrune::desk
