#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/SymbolPainter.h"
#include "desk/paint/mac/Window.h"
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
    EXPECT_EQ(targetAt(picture, centerOf(layout.closeButton)), DeskTarget::ofWindow(7));
    DeskHitTest hitTest;
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::titleBar(7)));
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::closeButton(7)));
}

TEST(ApplicationWindow, TellsItsPartsApart) {
    const DeskPicture picture = withWindow();
    DeskHitTest hitTest;
    const std::vector<DeskTarget> parts{DeskTarget::closeButton(7),     DeskTarget::titleBar(7),
                                        DeskTarget::control(7, Link),   DeskTarget::control(7, Main),
                                        DeskTarget::control(7, Switch), DeskTarget::control(7, Push)};
    for (std::size_t index = 0; index < parts.size(); ++index) {
        const auto area = hitTest.areaOf(picture, parts[index]);
        ASSERT_TRUE(area) << index;
        EXPECT_EQ(hitTest.targetAt(picture, centerOf(*area)), parts[index]) << index;
        EXPECT_TRUE(encloses(layoutOf(picture).frame, *area)) << index;
    }
    const Point inSentence{layoutOf(picture).content.minX() + 30, layoutOf(picture).content.minY() + 26};
    EXPECT_EQ(hitTest.targetAt(picture, inSentence), DeskTarget::ofWindow(7));
    const Rect frame = layoutOf(picture).frame;
    EXPECT_FALSE(hitTest.targetAt(picture, {frame.minX() - 2, centerOf(frame).y}));
    EXPECT_FALSE(hitTest.targetAt(picture, {frame.maxX() + 1, centerOf(frame).y}));
}

TEST(ApplicationWindow, IsATileInTheDockOnceItIsMinimized) {
    DeskPicture picture = withWindow();
    DeskHitTest hitTest;
    picture.windows[0].isMiniaturizable = true;
    const auto button = hitTest.areaOf(picture, DeskTarget::minimizeButton(7));
    ASSERT_TRUE(button);
    EXPECT_EQ(targetAt(picture, centerOf(*button)), DeskTarget::minimizeButton(7));
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::dockTile(7)));

    picture.windows.clear();
    picture.dockDisplay = 0;
    const CloseUp without{picture, {756, 900}};
    picture.miniaturized = {windowWithControls(), windowWithControls()};
    picture.miniaturized[1].number = 8;
    std::vector<Rect> tiles;
    for (const std::size_t number : {7U, 8U}) {
        const auto tile = hitTest.areaOf(picture, DeskTarget::dockTile(number));
        ASSERT_TRUE(tile);
        EXPECT_EQ(targetAt(picture, centerOf(*tile)), DeskTarget::dockTile(number));
        tiles.push_back(*tile);
    }
    EXPECT_GT(tiles[1].minX(), tiles[0].maxX());
    const auto changed = differenceOf(CloseUp(picture, {756, 900}), without);
    ASSERT_TRUE(changed);
    EXPECT_TRUE(encloses(*changed, tiles[1]));
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::dockTile(9)));
    picture.dockDisplay.reset();
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::dockTile(7)));
}

TEST(ApplicationWindow, HasNoPlaceForPartsThatItDoesNotHave) {
    DeskPicture picture = withWindow();
    DeskHitTest hitTest;
    for (const DeskTarget& target :
         {DeskTarget::control(7, Sentence), DeskTarget::control(7, 99), DeskTarget::control(8, Main),
          DeskTarget::ofWindow(7), DeskTarget::titleBar(8), DeskTarget::closeButton(8)}) {
        EXPECT_FALSE(hitTest.areaOf(picture, target)) << static_cast<int>(target.kind);
    }
    picture.windows[0].isClosable = false;
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::closeButton(7)));
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::minimizeButton(7)));
    EXPECT_FALSE(hitTest.areaOf(picture, DeskTarget::minimizeButton(8)));
    EXPECT_EQ(targetAt(picture, centerOf(layoutOf(picture).closeButton)), DeskTarget::titleBar(7));
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
    EXPECT_EQ(targetAt(picture, shared), DeskTarget::ofWindow(7));
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

TEST(ApplicationWindow, HasAHigherBarAndItsTitleAfterTheButtonsWithAToolbar) {
    DeskPicture picture = withWindow();
    picture.windows[0].look = WindowLook::sidebar;
    picture.windows[0].titleBarHeight = 52;
    const WindowLayout layout = layoutOf(picture);
    EXPECT_EQ(layout.closeButton, (Rect{620, 420, 12, 12}));
    EXPECT_EQ(layout.content.minY(), 452);
    const CloseUp painted{picture};
    EXPECT_LT(painted.darkest({692, 415, 60, 22}), 110);
    EXPECT_EQ(painted.at({850, 410}), painted.at({850, 460})) << "nothing parts the bar from the content";
    picture.windows[0].look = WindowLook::paper;
    EXPECT_TRUE(isNear(CloseUp{picture}.at({850, 460}), 255, 255, 255, 1));
    picture.dark = true;
    EXPECT_LT(CloseUp{picture}.at({850, 460}).red, 60);
}

TEST(ApplicationWindow, ShowsTheIconOfAnApplicationOrAGeneralOne) {
    const IconFile icon{rgb(0x00FF00)};
    DeskPicture picture = withWindow();
    const auto show = [&](const std::string& path) {
        const ui::StyledSymbol symbol{iconSymbol(path), ui::Font::system(64)};
        picture.windows[0].scene.elements = {ui::SymbolElement{{20, 20, 64, 64}, symbol}};
        return CloseUp{picture};
    };
    const CloseUp general = show("");
    EXPECT_FALSE(differenceOf(show("/no/such/icon.png"), general));
    EXPECT_TRUE(isNear(show(icon.path()).at({652, 480}), 0, 255, 0, 4));
    EXPECT_EQ(symbolSize({iconSymbol(""), ui::Font::system(64)}), (Size{64, 64}));
    EXPECT_FALSE(pathOfIcon("plus"));
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
    const Rect area = *hitTest.areaOf(picture, DeskTarget::control(7, Main));
    EXPECT_TRUE(encloses(DeskLayout::of(picture, TestWindow).place(0)->toWindow(area), *changed, 1));
    picture.windows.clear();
    const PaintedPicture closed{painter, picture, TestWindow};
    EXPECT_FALSE(differenceOf(closed, PaintedPicture{picture}));
}

} // namespace
} // namespace kestrune::desk
