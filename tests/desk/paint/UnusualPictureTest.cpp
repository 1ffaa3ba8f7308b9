#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskParts.h"
#include "tests/base/UnusualNumbers.h"
#include "tests/desk/paint/PaintedPicture.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrune::desk {
namespace {

DeskPicture pictureOf(const std::vector<Rect>& displays) {
    DeskPicture picture = twoDisplays();
    picture.displays.clear();
    for (const Rect& bounds : displays) {
        picture.displays.push_back({.name = "Display",
                                    .bounds = bounds,
                                    .pinned = true,
                                    .bandTop = bounds.maxY() - 5,
                                    .wallpaper = picture.displays.size()});
    }
    return picture;
}

cairo_status_t statusAfterPainting(const DeskPicture& picture, Size window = TestWindow) {
    const std::optional<Surface> surface = Surface::create(TestWindow, 1);
    DeskPainter painter;
    painter.paint(surface->context(), picture, window);
    return cairo_status(surface->context());
}

// Pixels darker than the background in the middle of the window, where the message stands.
int messagePixels(const DeskPicture& picture) {
    const double middle = centerOf(DeskLayout::of(picture, TestWindow).stage()).y;
    return PaintedPicture{picture}.count({TestWindow.width / 2 - 120, middle - 12, 240, 24},
                                         [](Pixel pixel) { return pixel.red < 160; });
}

TEST(UnusualPicture, WithoutDisplaysSaysSo) {
    const DeskPicture nothing = pictureOf({});
    EXPECT_GT(messagePixels(nothing), 200);
    const PaintedPicture painted{nothing};
    const double middle = TestWindow.width / 2;
    EXPECT_EQ(painted.count({middle - 120, 100, 240, 60}, [](Pixel pixel) { return pixel.red < 160; }), 0);
}

TEST(UnusualPicture, WithDisplaysThatCannotBeDrawnSaysThatThereIsNone) {
    const DeskPicture picture = pictureOf({{NotANumber, 0, 100, 100}, {0, 0, Infinity, 100}, {0, 0, 0, 0}});
    EXPECT_GT(messagePixels(picture), 200);
}

TEST(UnusualPicture, WithDisplaysOfAnyShapePaints) {
    const std::vector<std::vector<Rect>> arrangements{
        {{0, 0, 1512, 982}, {NotANumber, NotANumber, NotANumber, NotANumber}, {1512, 0, 100, 100}},
        {{0, 0, 1512, 982}, {1512, 500, 800, 4}},
        {{0, 0, 1512, 982}, {1512, 0, 1, 1}},
        {{0, 0, 1e7, 1}},
        {{0, 0, 1e-300, 1e-300}},
        {{0, 0, 5e-324, 1000}},
        {{-1e7, -1e7, 2e7, 2e7}},
        {{0, 0, 1000, 1000}, {0, 0, 1000, 1000}},
        {{500, 500, -500, -500}},
    };
    for (std::size_t index = 0; index < arrangements.size(); ++index) {
        DeskPicture picture = pictureOf(arrangements[index]);
        picture.dockDisplay = arrangements[index].size() - 1;
        picture.dockMoveMark = DockMoveMark{0, arrangements[index].size() - 1, 0.1};
        picture.heldMark = HeldMark{arrangements[index].front().origin, 0.1};
        EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS) << index;
    }
}

TEST(UnusualPicture, WithMarksAndPointerAnywherePaints) {
    DeskPicture picture = twoDisplays();
    for (const double number : {NotANumber, Infinity, -Infinity, 1e300, -1e18, 0.0}) {
        picture.pointer = {number, number};
        picture.heldMark = HeldMark{{number, number}, number};
        picture.dockMoveMark = DockMoveMark{0, 1, number};
        picture.displays[1].bandTop = number;
        EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS) << number;
    }
    picture.dockDisplay = 99;
    picture.dockMoveMark = DockMoveMark{98, 99, 0};
    EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS);
}

TEST(UnusualPicture, ShowsAHeldMarkBehindADisplayThatCannotBeDrawn) {
    DeskPicture picture = twoDisplays();
    picture.displays.insert(picture.displays.begin(),
                            {.name = "Gone", .bounds = {}, .bandTop = std::nullopt});
    const PaintedPicture without{picture};
    picture.heldMark = HeldMark{{2400, 977}, 0.2};
    EXPECT_TRUE(differenceOf(PaintedPicture{picture}, without));
}

TEST(UnusualPicture, InAWindowOfAnySizePaints) {
    DeskPicture picture = twoDisplays();
    picture.story = "A story that is told in a window without room for it.";
    for (const double length : {0.0, -5.0, NotANumber, Infinity, 1e9, 0.5, 1.0, 30.0, 200.0}) {
        EXPECT_EQ(statusAfterPainting(picture, {length, length}), CAIRO_STATUS_SUCCESS) << length;
        EXPECT_EQ(statusAfterPainting(picture, {length, 700}), CAIRO_STATUS_SUCCESS) << length;
        EXPECT_EQ(statusAfterPainting(picture, {1200, length}), CAIRO_STATUS_SUCCESS) << length;
    }
}

// With every part of the system's that there is.
DeskPicture crowdedPicture() {
    DeskPicture picture = withMenu();
    picture.toolTip = ToolTipPicture{0, 0, "A tool tip"};
    picture.windows = {windowWithControls(), windowWithControls()};
    picture.windows[1].look = WindowLook::paper;
    picture.mainMenuTitles = {"Kestrune", "File"};
    return picture;
}

TEST(UnusualPicture, WithTheSystemsPartsInAWindowOfAnySizePaints) {
    const DeskPicture picture = crowdedPicture();
    for (const double length : {0.0, -5.0, NotANumber, Infinity, 1e9, 0.5, 1.0, 30.0, 200.0}) {
        EXPECT_EQ(statusAfterPainting(picture, {length, length}), CAIRO_STATUS_SUCCESS) << length;
        EXPECT_EQ(statusAfterPainting(picture, {length, 700}), CAIRO_STATUS_SUCCESS) << length;
        EXPECT_EQ(statusAfterPainting(picture, {1200, length}), CAIRO_STATUS_SUCCESS) << length;
        DeskHitTest hitTest;
        EXPECT_FALSE(hitTest.targetAt(picture, {length, -99}));
    }
}

TEST(UnusualPicture, WithTheSystemsPartsButNoDisplayShowsNone) {
    DeskPicture picture = crowdedPicture();
    picture.displays.clear();
    DeskPicture without;
    without.guard = picture.guard;
    without.whatHappened = picture.whatHappened;
    without.keys = picture.keys;
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, PaintedPicture{without}));
}

TEST(UnusualPicture, ThatShowsAnyPartOfTheDisplaysPaints) {
    DeskPicture picture = crowdedPicture();
    for (const double number : {NotANumber, Infinity, -Infinity, 1e300, -1e18, 0.0, 500.0}) {
        for (const double length : {NotANumber, Infinity, 1e300, -5.0, 0.0, 1e-300, 400.0}) {
            picture.shown = Rect{number, number, length, length};
            EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS) << number << " " << length;
        }
    }
}

TEST(UnusualPicture, WithPartsOfTheSystemThatDoNotExistPaints) {
    DeskPicture picture = crowdedPicture();
    picture.menu->anchor = StatusItemAnchor{99};
    picture.toolTip->item = 99;
    picture.windows[0].pressedElement = 99;
    picture.windows[0].movingSwitch = MovingSwitch{99, 0.5};
    EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS);
    picture.menu->anchor = StatusItemAnchor{0};
    picture.menu->rows.clear();
    picture.mainMenuTitles = {"", "\xFF"};
    picture.windows[0].title = "\xC3\x28";
    picture.statusItems[0].imageSize = {NotANumber, Infinity};
    EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS);
}

TEST(UnusualPicture, WithWindowsOfAnySizeInTheDockPaints) {
    DeskPicture picture = twoDisplays();
    picture.dockDisplay = 0;
    for (const double length : {0.0, -5.0, NotANumber, Infinity, 1e9, 0.5, 1.0, 30.0, 200.0}) {
        WindowPicture window;
        window.frame.size = {length, 100};
        picture.miniaturized.push_back(window);
        window.frame.size = {length, length};
        picture.miniaturized.push_back(window);
        EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS) << length;
        EXPECT_EQ(statusAfterPainting(picture, {30, 200}), CAIRO_STATUS_SUCCESS) << length;
    }
}

TEST(UnusualPicture, WithIllFormedTextPaints) {
    DeskPicture picture = twoDisplays();
    picture.displays[0].name = "\xC3\x28 \xFF";
    picture.whatHappened = std::string("\0\xED\xA0\x80", 4);
    picture.displays[1].name.clear();
    EXPECT_EQ(statusAfterPainting(picture), CAIRO_STATUS_SUCCESS);
}

} // namespace
} // namespace kestrune::desk
