#include "desk/paint/desk/DeskHitTest.h"
#include "desk/paint/mac/WindowLayout.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrune::desk {
namespace {

WindowLayout layoutOf(const DeskPicture& picture, std::size_t index = 0) {
    return windowLayout(picture.windows[index]);
}

std::optional<DeskTarget> targetAt(const DeskPicture& picture, Point place) {
    DeskHitTest hitTest;
    return hitTest.targetAt(picture, place);
}

TEST(ApplicationWindow, IsWhereItIsOnItsDisplay) {
    const DeskPicture picture = withWindow();
    const WindowLayout layout = layoutOf(picture);
    EXPECT_EQ(layout.frame, (Rect{600, 400, 300, 228}));
    EXPECT_EQ(layout.titleBar, (Rect{600, 400, 300, 28}));
    EXPECT_EQ(layout.content, (Rect{600, 428, 300, 200}));
    EXPECT_EQ(layout.closeButton, (Rect{608, 408, 12, 12}));
    EXPECT_EQ(layout.minimizeButton, (Rect{628, 408, 12, 12}));
}

TEST(ApplicationWindow, IsPaintedToScaleOnItsDisplay) {
    DeskPicture picture = withWindow();
    DeskPicture without = picture;
    without.windows.clear();
    const DeskLayout desk = DeskLayout::of(picture, TestWindow);
    const auto changed = differenceOf(PaintedPicture{picture}, PaintedPicture{without});
    ASSERT_TRUE(changed);
    const Rect frame = desk.place(0)->toWindow(picture.windows[0].frame);
    EXPECT_NEAR(frame.width(), 300 * desk.scale(), 1e-9);
    EXPECT_TRUE(encloses(*changed, frame, 1));
    EXPECT_LT(changed->width(), frame.width() + 110 * desk.scale()) << "with the shadow";
}

TEST(ApplicationWindow, IsOnEveryDisplayThatItReachesAndOnNoHousing) {
    DeskPicture picture = withWindow();
    picture.windows[0].frame.origin = {1400, 400};
    DeskPicture without = picture;
    without.windows.clear();
    const PaintedPicture with{picture};
    const PaintedPicture plain{without};
    const DeskLayout desk = DeskLayout::of(picture, TestWindow);
    const auto differsAt = [&](Point place) { return with.at(place) != plain.at(place); };
    EXPECT_TRUE(differsAt(desk.place(0)->toWindow(Point{1450, 600})));
    EXPECT_TRUE(differsAt(desk.place(1)->toWindow(Point{1650, 600})));
    const double middle = (desk.place(0)->housing.maxX() + desk.place(1)->housing.minX()) / 2;
    const double down = desk.place(0)->toWindow(Point{0, 600}).y;
    for (double x = desk.place(0)->screen.maxX() + 1; x < desk.place(1)->screen.minX() - 1; x += 1) {
        EXPECT_FALSE(differsAt({x, down})) << x - middle;
    }
}

TEST(ApplicationWindow, IsBehindTheDockAndTheMenuBars) {
    DeskPicture picture = withWindow();
    picture.windows[0].frame = {600, 0, 300, 982};
    EXPECT_FALSE(targetAt(picture, {700, 5}));
    EXPECT_FALSE(targetAt(picture, {700, 982 - 30}));
    EXPECT_TRUE(targetAt(picture, {700, 500}));
    picture.dockDisplay.reset();
    EXPECT_TRUE(targetAt(picture, {700, 982 - 30}));
}

TEST(ApplicationWindow, WithoutTitleBarIsAllContent) {
    DeskPicture picture = withWindow();
    picture.windows[0].titleBarHeight = 0;
    picture.windows[0].frame.size.height = 200;
    const WindowLayout layout = layoutOf(picture);
    EXPECT_EQ(layout.content, layout.frame);
    EXPECT_EQ(targetAt(picture, centerOf(layout.closeButton)), DeskTarget{WindowTarget{7}});
    DeskHitTest hitTest;
    EXPECT_FALSE(hitTest.areaOf(picture, WindowTitleTarget{7}));
    EXPECT_FALSE(hitTest.areaOf(picture, WindowCloseTarget{7}));
}

TEST(ApplicationWindow, TellsItsPartsApart) {
    const DeskPicture picture = withWindow();
    DeskHitTest hitTest;
    const std::vector<DeskTarget> parts{WindowCloseTarget{7},           WindowTitleTarget{7},
                                        WindowControlTarget{7, Link},   WindowControlTarget{7, Main},
                                        WindowControlTarget{7, Switch}, WindowControlTarget{7, Push}};
    for (std::size_t index = 0; index < parts.size(); ++index) {
        const auto area = hitTest.areaOf(picture, parts[index]);
        ASSERT_TRUE(area) << index;
        EXPECT_EQ(hitTest.targetAt(picture, centerOf(*area)), parts[index]) << index;
        EXPECT_TRUE(encloses(layoutOf(picture).frame, *area)) << index;
    }
    const Point inSentence{layoutOf(picture).content.minX() + 30, layoutOf(picture).content.minY() + 26};
    EXPECT_EQ(hitTest.targetAt(picture, inSentence), DeskTarget{WindowTarget{7}});
    const Rect frame = layoutOf(picture).frame;
    EXPECT_FALSE(hitTest.targetAt(picture, {frame.minX() - 2, centerOf(frame).y}));
    EXPECT_FALSE(hitTest.targetAt(picture, {frame.maxX() + 1, centerOf(frame).y}));
}

TEST(ApplicationWindow, IsATileInTheDockOnceItIsMinimized) {
    DeskPicture picture = withWindow();
    DeskHitTest hitTest;
    picture.windows[0].isMiniaturizable = true;
    const auto button = hitTest.areaOf(picture, WindowMinimizeTarget{7});
    ASSERT_TRUE(button);
    EXPECT_EQ(targetAt(picture, centerOf(*button)), DeskTarget{WindowMinimizeTarget{7}});
    EXPECT_FALSE(hitTest.areaOf(picture, DockTileTarget{7}));

    picture.windows.clear();
    picture.dockDisplay = 0;
    const CloseUp without{picture, {756, 900}};
    picture.miniaturized = {windowWithControls(), windowWithControls()};
    picture.miniaturized[1].number = 8;
    std::vector<Rect> tiles;
    for (const std::size_t number : {7U, 8U}) {
        const auto tile = hitTest.areaOf(picture, DockTileTarget{number});
        ASSERT_TRUE(tile);
        EXPECT_EQ(targetAt(picture, centerOf(*tile)), DeskTarget{DockTileTarget{number}});
        tiles.push_back(*tile);
    }
    EXPECT_GT(tiles[1].minX(), tiles[0].maxX());
    const auto changed = differenceOf(CloseUp(picture, {756, 900}), without);
    ASSERT_TRUE(changed);
    EXPECT_TRUE(encloses(*changed, tiles[1]));
    EXPECT_FALSE(hitTest.areaOf(picture, DockTileTarget{9}));
    picture.dockDisplay.reset();
    EXPECT_FALSE(hitTest.areaOf(picture, DockTileTarget{7}));
}

TEST(ApplicationWindow, HasNoPlaceForPartsThatItDoesNotHave) {
    DeskPicture picture = withWindow();
    DeskHitTest hitTest;
    for (const DeskTarget& target :
         {DeskTarget{WindowControlTarget{7, Sentence}}, DeskTarget{WindowControlTarget{7, 99}},
          DeskTarget{WindowControlTarget{8, Main}}, DeskTarget{WindowTarget{7}},
          DeskTarget{WindowTitleTarget{8}}, DeskTarget{WindowCloseTarget{8}}}) {
        EXPECT_FALSE(hitTest.areaOf(picture, target)) << target.index();
    }
    picture.windows[0].isClosable = false;
    EXPECT_FALSE(hitTest.areaOf(picture, WindowCloseTarget{7}));
    EXPECT_FALSE(hitTest.areaOf(picture, WindowMinimizeTarget{7}));
    EXPECT_FALSE(hitTest.areaOf(picture, WindowMinimizeTarget{8}));
    EXPECT_EQ(targetAt(picture, centerOf(layoutOf(picture).closeButton)), DeskTarget{WindowTitleTarget{7}});
}

TEST(ApplicationWindow, LiesAsFarInFrontAsItsDepthSays) {
    DeskHitTest hitTest;
    // The window lies over all of what the other picture has on the same display.
    const auto isCovered = [&](DeskPicture picture, const DeskTarget& other, WindowDepth depth) {
        picture.windows = {windowWithControls()};
        picture.windows[0].frame = {450, 250, 612, 600};
        picture.windows[0].depth = depth;
        const Rect area = *hitTest.areaOf(picture, other);
        return hitTest.targetAt(picture, centerOf(area)) != other;
    };
    const DeskTarget inPane = PaneSwitchTarget{1};
    EXPECT_FALSE(isCovered(withPane(), inPane, WindowDepth::behindSystemWindows));
    EXPECT_TRUE(isCovered(withPane(), inPane, WindowDepth::beforePane));
    EXPECT_TRUE(isCovered(withPane(), inPane, WindowDepth::beforeDialog));
    DeskPicture dialog = withDialog();
    dialog.permissionDialog->display = 0;
    const DeskTarget inDialog = DialogButtonTarget{DialogButton::deny};
    EXPECT_FALSE(isCovered(dialog, inDialog, WindowDepth::behindSystemWindows));
    EXPECT_FALSE(isCovered(dialog, inDialog, WindowDepth::beforePane));
    EXPECT_TRUE(isCovered(dialog, inDialog, WindowDepth::beforeDialog));
}

TEST(ApplicationWindow, IsPaintedInTheOrderInWhichItIsHit) {
    DeskPicture picture = withWindow();
    picture.settingsPane = withPane().settingsPane;
    picture.windows[0].frame = {450, 250, 612, 600};
    picture.windows[0].scene = {};
    DeskHitTest hitTest;
    const Rect toggle = *hitTest.areaOf(picture, PaneSwitchTarget{0});
    const Point onTrack{toggle.minX() + 7, centerOf(toggle).y};
    const auto isBlue = [](Pixel pixel) { return pixel.blue > pixel.red + 100; };
    picture.windows[0].depth = WindowDepth::behindSystemWindows;
    EXPECT_TRUE(isBlue(CloseUp{picture}.at(onTrack)));
    picture.windows[0].depth = WindowDepth::beforePane;
    EXPECT_TRUE(isNear(CloseUp{picture}.at(onTrack), 0xEC, 0xEC, 0xEC, 2));
}

TEST(ApplicationWindow, HasTheFirstOfSeveralInFront) {
    DeskPicture picture = withWindow();
    WindowPicture second = windowWithControls();
    second.number = 8;
    second.frame.origin = {700, 500};
    second.isKey = false;
    picture.windows.push_back(second);
    const Point shared = centerOf(layoutOf(picture, 1).closeButton);
    ASSERT_TRUE(layoutOf(picture, 0).frame.contains(shared));
    EXPECT_EQ(targetAt(picture, shared), DeskTarget{WindowTarget{7}});
    const Pixel front = CloseUp{picture}.at(shared);
    picture.windows.pop_back();
    EXPECT_EQ(CloseUp{picture}.at(shared), front);
    picture.windows = {second};
    EXPECT_FALSE(CloseUp{picture}.at(shared) == front);
}

TEST(ApplicationWindow, HasARedCloseButtonWhileItIsKeyAndGreyOnesForWhatItCannotDo) {
    DeskPicture picture = withWindow();
    const Point close = centerOf(layoutOf(picture).closeButton);
    const auto buttons = [&] {
        const CloseUp painted{picture};
        return std::vector{painted.at(close), painted.at({close.x + 20, close.y}),
                           painted.at({close.x + 40, close.y})};
    };
    const auto isGrey = [](Pixel pixel) {
        return std::abs(pixel.red - pixel.green) < 6 && std::abs(pixel.green - pixel.blue) < 6;
    };
    EXPECT_TRUE(isNear(buttons()[0], 0xFF, 0x5F, 0x57, 3));
    EXPECT_TRUE(isGrey(buttons()[1]));
    EXPECT_TRUE(isGrey(buttons()[2]));
    picture.windows[0].isMiniaturizable = true;
    picture.windows[0].isResizable = true;
    EXPECT_GT(buttons()[1].red, buttons()[1].blue + 100);
    EXPECT_GT(buttons()[2].green, buttons()[2].red + 100);
    picture.windows[0].isCloseButtonPressed = true;
    EXPECT_LT(buttons()[0].red, 200);
    picture.windows[0].isCloseButtonPressed = false;
    picture.windows[0].isMinimizeButtonPressed = true;
    EXPECT_LT(buttons()[1].red, 200);
    picture.windows[0].isMinimizeButtonPressed = false;
    picture.windows[0].isKey = false;
    for (const Pixel pixel : buttons()) {
        EXPECT_TRUE(isGrey(pixel));
    }
}

TEST(ApplicationWindow, ShowsACrossInTheCloseButtonUnderThePointerInTheBackgroundToo) {
    DeskPicture picture = withWindow();
    const Point close = centerOf(layoutOf(picture).closeButton);
    for (const bool isKey : {true, false}) {
        picture.windows[0].isKey = isKey;
        picture.windows[0].isCloseButtonHovered = true;
        const CloseUp hovered{picture};
        EXPECT_LT(hovered.at(close).red, 160);
        EXPECT_TRUE(isNear(hovered.at({close.x + 4, close.y}), 0xFF, 0x5F, 0x57, 3));
        picture.windows[0].isClosable = false;
        EXPECT_GT(CloseUp{picture}.at(close).red, 160);
        picture.windows[0].isClosable = true;
    }
}

TEST(ApplicationWindow, ShowsALineInTheMinimizeButtonUnderThePointer) {
    DeskPicture picture = withWindow();
    picture.windows[0].isMiniaturizable = true;
    const Point minimize = centerOf(layoutOf(picture).minimizeButton);
    EXPECT_TRUE(isNear(CloseUp{picture}.at(minimize), 0xFE, 0xBC, 0x2E, 3));
    picture.windows[0].isMinimizeButtonHovered = true;
    const CloseUp hovered{picture};
    EXPECT_LT(hovered.at(minimize).red, 180);
    EXPECT_TRUE(isNear(hovered.at({minimize.x, minimize.y + 3}), 0xFE, 0xBC, 0x2E, 3));
}

TEST(ApplicationWindow, ShowsItsTitleInTheMiddleAndPalerInTheBackground) {
    DeskPicture picture = withWindow();
    const Rect bar = layoutOf(picture).titleBar;
    const auto darkest = [&](const Rect& area) { return CloseUp{picture}.darkest(area); };
    const Rect middle{centerOf(bar).x - 30, bar.minY() + 6, 60, 16};
    const int inFront = darkest(middle);
    EXPECT_LT(inFront, 110);
    EXPECT_GT(darkest({bar.minX() + 70, bar.minY() + 6, 30, 16}), 220);
    picture.windows[0].isKey = false;
    EXPECT_GT(darkest(middle), inFront + 50);
    // However long the title is, it leaves the buttons alone.
    picture.windows[0].title = std::string(300, 'W');
    EXPECT_GT(darkest({bar.minX() + 62, bar.minY() + 6, 8, 16}), 220);
}

TEST(ApplicationWindow, IsPaintedAnewOnlyWhenItHasChanged) {
    DeskPainter painter;
    DeskPicture picture = withWindow();
    const PaintedPicture first{painter, picture, TestWindow};
    picture.pointer = {900, 480};
    const PaintedPicture moved{painter, picture, TestWindow};
    EXPECT_FALSE(differenceOf(moved, PaintedPicture{picture}));
    picture.windows[0].pressedElement = Main;
    const PaintedPicture pressed{painter, picture, TestWindow};
    EXPECT_FALSE(differenceOf(pressed, PaintedPicture{picture}));
    const auto changed = differenceOf(pressed, moved);
    ASSERT_TRUE(changed);
    DeskHitTest hitTest;
    const Rect area = *hitTest.areaOf(picture, WindowControlTarget{7, Main});
    EXPECT_TRUE(encloses(DeskLayout::of(picture, TestWindow).place(0)->toWindow(area), *changed, 1));
    picture.windows.clear();
    const PaintedPicture closed{painter, picture, TestWindow};
    EXPECT_FALSE(differenceOf(closed, PaintedPicture{picture}));
}

} // namespace
} // namespace kestrune::desk
