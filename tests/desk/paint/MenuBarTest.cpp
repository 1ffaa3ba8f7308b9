#include "desk/paint/ImageStore.h"
#include "desk/paint/MenuBarLayout.h"
#include "tests/base/TemporaryFolder.h"
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
        EXPECT_GT(bar.titles[0].minX(), bar.mark.x + bar.markRadius);
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

TEST(MenuBar, KeepsImagesInProportionToTheBarAndOnWholePixels) {
    DeskPicture picture = withStatusItem();
    for (const Size size : {Size{18, 18}, Size{20, 20}, Size{30, 22}, Size{200, 100}}) {
        picture.statusItems[0].imageSize = size;
        const MenuBarLayout bar = menuBarOf(picture, 0);
        const Rect image = bar.statusItems[0].image;
        EXPECT_GE(image.height(), bar.area.height() * 0.7) << size.height;
        EXPECT_LE(image.height(), bar.area.height() * 0.82) << size.height;
        EXPECT_NEAR(image.width() / image.height(), size.width / size.height, 0.1);
        EXPECT_EQ(image.minX(), std::round(image.minX()));
        EXPECT_EQ(image.minY(), std::round(image.minY()));
    }
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
        const PaintedPicture without{picture};
        picture.statusItems[0] = statusItem(icon.path());
        const PaintedPicture with{picture};
        const Rect image = menuBarOf(picture, 1).statusItems[0].image;
        const Pixel tinted = with.at(centerOf(image));
        EXPECT_TRUE(dark ? tinted.green > 200 : tinted.red < 90) << tinted.red << " " << tinted.green;
        EXPECT_LT(std::abs(tinted.red - tinted.green), 60);
        const Point corner{image.minX() + 1, image.minY() + 1};
        EXPECT_EQ(with.at(corner), without.at(corner));
        const std::optional<Rect> changed = differenceOf(with, without);
        ASSERT_TRUE(changed);
        EXPECT_TRUE(encloses(menuBarOf(picture, 1).area, {changed->maxX() - 1, changed->minY(), 1, 1}, 1));
    }
}

TEST(MenuBar, KeepsTheColoursOfOtherImages) {
    const IconFile icon{rgb(0xFF0000)};
    DeskPicture picture = withStatusItem();
    picture.statusItems[0] = statusItem(icon.path());
    picture.statusItems[0].isTemplate = false;
    const Point center = centerOf(menuBarOf(picture, 0).statusItems[0].image);
    EXPECT_TRUE(isNear(PaintedPicture{picture}.at(center), 255, 0, 0, 4));
}

TEST(MenuBar, KeepsTheSlotOfAnImageThatCannotBeRead) {
    const TemporaryFolder folder;
    const std::string noPng = folder.file("no-png.txt", "This is not a picture.");
    DeskPicture picture = withStatusItem();
    const PaintedPicture without{picture};
    const Rect slot = menuBarOf(picture, 0).statusItems[0].slot;
    for (const std::string& path : {std::string{}, std::string{"/no/such/file.png"}, noPng}) {
        picture.statusItems[0].imagePath = path;
        EXPECT_FALSE(differenceOf(PaintedPicture{picture}, without)) << path;
        EXPECT_EQ(menuBarOf(picture, 0).statusItems[0].slot, slot);
    }
}

TEST(MenuBar, HighlightsWhatTheOpenMenuHangsFromOnItsDisplayOnly) {
    DeskPicture picture = withMenu();
    picture.mainMenuTitles = {"Kestrune", "File"};
    DeskPicture closed = picture;
    closed.menu.reset();
    const PaintedPicture without{closed};
    const auto changes = [&](const PaintedPicture& painted, const Rect& slot) {
        const Point place{slot.minX() + 3, slot.minY() + slot.height() / 2};
        return painted.at(place) != without.at(place);
    };
    const PaintedPicture item{picture};
    EXPECT_TRUE(changes(item, menuBarOf(picture, 1).statusItems[0].slot));
    EXPECT_FALSE(changes(item, menuBarOf(picture, 0).statusItems[0].slot));
    picture.menu->anchor = MainMenuTitleAnchor{1};
    const PaintedPicture title{picture};
    EXPECT_FALSE(changes(title, menuBarOf(picture, 1).statusItems[0].slot));
    EXPECT_TRUE(changes(title, menuBarOf(picture, 1).titles[1]));
    EXPECT_FALSE(changes(title, menuBarOf(picture, 0).titles[1]));
}

TEST(MenuBar, HasNoPartsOnADisplayThatIsDrawnTooSmall) {
    DeskPicture picture = withStatusItem();
    picture.mainMenuTitles = {"Kestrune"};
    picture.displays.push_back({.name = "Strip", .bounds = {3432, 0, 800, 60}, .bandTop = std::nullopt});
    const MenuBarLayout bar = menuBarOf(picture, 2);
    EXPECT_FALSE(bar.isLegible);
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
