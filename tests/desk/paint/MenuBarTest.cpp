#include "desk/paint/mac/MenuBar.h"

#include "desk/paint/toolkit/ImageStore.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

TEST(MenuBar, PutsStatusItemsInOrderBetweenTitlesAndClock) {
    DeskPicture picture = withStatusItem();
    picture.statusItems.push_back(picture.statusItems.front());
    picture.mainMenuTitles = {"Kestrune", "File", "Edit"};
    for (const std::size_t display : {0U, 1U}) {
        const MenuBarLayout bar = menuBarOf(picture, display);
        ASSERT_EQ(bar.titles.size(), 3U);
        ASSERT_EQ(bar.statusItems.size(), 2U);
        EXPECT_GT(bar.titles[0].minX(), bar.mark.x);
        EXPECT_LE(bar.titles[0].maxX(), bar.titles[1].minX());
        EXPECT_LE(bar.titles[2].maxX(), bar.statusItems[0].slot.minX());
        EXPECT_LE(bar.statusItems[0].slot.maxX(), bar.statusItems[1].slot.minX());
        EXPECT_LT(bar.statusItems[1].slot.maxX(), bar.clock.x - 30);
        for (const StatusItemPlace& item : bar.statusItems) {
            EXPECT_TRUE(encloses(bar.area, item.slot));
            EXPECT_TRUE(encloses(item.slot, item.image));
        }
    }
}

TEST(MenuBar, ShowsImagesInTheirSizeAsFarAsTheBarIsHigh) {
    DeskPicture picture = withStatusItem();
    for (const Size size : {Size{18, 18}, Size{20, 20}, Size{30, 22}}) {
        picture.statusItems[0].imageSize = size;
        const Rect image = menuBarOf(picture, 0).statusItems[0].image;
        EXPECT_EQ(image.size, size);
        EXPECT_EQ(image.minX(), std::round(image.minX()));
        EXPECT_EQ(image.minY(), std::round(image.minY()));
    }
    picture.statusItems[0].imageSize = {200, 100};
    EXPECT_EQ(menuBarOf(picture, 0).statusItems[0].image.size, (Size{44, 22}));
}

TEST(MenuBar, IsAsHighAsOnTheMac) {
    const DeskPicture picture = withStatusItem();
    EXPECT_EQ(menuBarOf(picture, 1).area, (Rect{1512, -98, 1920, 24}));
}

TEST(MenuBar, HasTheTitlesOfTheFinderUntilTheApplicationHasSome) {
    DeskPicture picture = withStatusItem();
    EXPECT_EQ(menuBarTitles(picture).front(), "Finder");
    EXPECT_EQ(menuBarOf(picture, 0).titles.size(), menuBarTitles(picture).size());
    const CloseUp finder{picture, centerOf(menuBarOf(picture, 0).titles[0])};
    picture.mainMenuTitles = {"Kestrune", "Edit"};
    EXPECT_EQ(menuBarTitles(picture), picture.mainMenuTitles);
    EXPECT_TRUE(differenceOf(finder, CloseUp{picture, centerOf(menuBarOf(picture, 0).titles[0])}));
}

TEST(MenuBar, GivesAnItemOfAnImpossibleSizeTheUsualOne) {
    DeskPicture picture = withStatusItem();
    picture.statusItems[0].imageSize = {18, 18};
    const Rect usual = menuBarOf(picture, 0).statusItems[0].slot;
    for (const double length : {0.0, -4.0, std::nan(""), 1e9}) {
        picture.statusItems[0].imageSize = {length, 18};
        EXPECT_EQ(menuBarOf(picture, 0).statusItems[0].slot, usual) << length;
    }
}

TEST(MenuBar, LeavesOutWhatHasNoRoom) {
    DeskPicture picture = withStatusItem();
    picture.mainMenuTitles.assign(40, "Some title");
    const MenuBarLayout crowded = menuBarOf(picture, 0);
    EXPECT_GT(crowded.titles.size(), 1U);
    EXPECT_LE(crowded.titles.back().maxX(), crowded.statusItems[0].slot.minX());

    picture.mainMenuTitles.clear();
    picture.statusItems.assign(60, picture.statusItems.front());
    const MenuBarLayout overfull = menuBarOf(picture, 0);
    EXPECT_TRUE(overfull.statusItems.front().slot.isNull());
    EXPECT_FALSE(overfull.statusItems.back().slot.isNull());
}

TEST(MenuBar, TintsTemplateImagesInTheColourOfItsText) {
    const IconFile icon{rgb(0xFF0000)};
    DeskPicture picture = withStatusItem();
    for (const bool dark : {false, true}) {
        picture.dark = dark;
        picture.statusItems[0].imagePath.reset();
        const Rect image = menuBarOf(picture, 1).statusItems[0].image;
        const CloseUp without{picture, centerOf(image)};
        picture.statusItems[0] = statusItem(icon.path());
        const CloseUp with{picture, centerOf(image)};
        const Pixel tinted = with.at(centerOf(image));
        EXPECT_TRUE(dark ? tinted.green > 200 : tinted.red < 90) << tinted.red << " " << tinted.green;
        EXPECT_LT(std::abs(tinted.red - tinted.green), 60);
        const Point corner{image.minX() + 1, image.minY() + 1};
        EXPECT_EQ(with.at(corner), without.at(corner));
        const std::optional<Rect> changed = differenceOf(with, without);
        ASSERT_TRUE(changed);
        EXPECT_TRUE(encloses(image, *changed, 1));
    }
}

TEST(MenuBar, KeepsTheColoursOfOtherImages) {
    const IconFile icon{rgb(0xFF0000)};
    DeskPicture picture = withStatusItem();
    picture.statusItems[0] = statusItem(icon.path());
    picture.statusItems[0].isTemplate = false;
    const Point center = centerOf(menuBarOf(picture, 0).statusItems[0].image);
    EXPECT_TRUE(isNear(CloseUp(picture, center).at(center), 255, 0, 0, 4));
}

TEST(MenuBar, KeepsTheSlotOfAnImageThatCannotBeRead) {
    const TemporaryFolder folder;
    const std::string noPng = folder.file("no-png.txt", "This is not a picture.");
    DeskPicture picture = withStatusItem();
    const Rect slot = menuBarOf(picture, 0).statusItems[0].slot;
    const CloseUp without{picture, centerOf(slot)};
    for (const std::string& path : {std::string{}, std::string{"/no/such/file.png"}, noPng}) {
        picture.statusItems[0].imagePath = path;
        EXPECT_FALSE(differenceOf(CloseUp(picture, centerOf(slot)), without)) << path;
        EXPECT_EQ(menuBarOf(picture, 0).statusItems[0].slot, slot);
    }
}

TEST(MenuBar, HighlightsWhatTheOpenMenuHangsFromOnItsDisplayOnly) {
    DeskPicture picture = withMenu();
    picture.mainMenuTitles = {"Kestrune", "File"};
    const auto changes = [&](const Rect& slot) {
        const Point place{slot.minX() + 3, slot.minY() + slot.height() / 2};
        DeskPicture closed = picture;
        closed.menu.reset();
        return CloseUp(picture, place).at(place) != CloseUp(closed, place).at(place);
    };
    EXPECT_TRUE(changes(menuBarOf(picture, 1).statusItems[0].slot));
    EXPECT_FALSE(changes(menuBarOf(picture, 0).statusItems[0].slot));
    picture.menu->anchor = MainMenuTitleAnchor{1};
    EXPECT_FALSE(changes(menuBarOf(picture, 1).statusItems[0].slot));
    EXPECT_TRUE(changes(menuBarOf(picture, 1).titles[1]));
    EXPECT_FALSE(changes(menuBarOf(picture, 0).titles[1]));
}

TEST(MenuBar, HasNoPartsOnADisplayWithoutRoomForThem) {
    DeskPicture picture = withStatusItem();
    picture.mainMenuTitles = {"Kestrune"};
    picture.displays.push_back({.name = "Strip", .bounds = {3432, 0, 60, 800}, .bandTop = std::nullopt});
    const MenuBarLayout bar = menuBarOf(picture, 2);
    EXPECT_TRUE(bar.titles.empty());
    ASSERT_EQ(bar.statusItems.size(), 1U);
    EXPECT_TRUE(bar.statusItems[0].slot.isNull());
}

TEST(ImageStore, ReadsAFileOnce) {
    ImageStore images;
    std::string path;
    cairo_surface_t* first = nullptr;
    {
        const IconFile icon;
        path = icon.path();
        first = images.image(path);
        ASSERT_NE(first, nullptr);
        EXPECT_EQ(cairo_image_surface_get_width(first), 40);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(images.image(path), first);
    EXPECT_EQ(images.image(testing::TempDir()), nullptr);
}

} // namespace
} // namespace kestrune::desk
