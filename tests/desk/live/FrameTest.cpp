// What of the desk a scene shows.

#include "desk/live/gallery/Stage.h"
#include "desk/live/world/LivePicture.h"
#include "desk/paint/desk/DeskLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrune::desk {
namespace {

// A desk of displays as they usually are, with the pointer on one of them.
DeskPicture pictureWithPointerAt(Point pointer) {
    DeskPicture picture;
    picture.displays.resize(2);
    picture.displays[0].bounds = {0, 0, 1512, 982};
    picture.displays[1].bounds = {1512, -98, 1920, 1080};
    picture.dockDisplay = 0;
    picture.pointer = pointer;
    picture.story = "A story";
    return picture;
}

DeskPicture applied(Frame frame, DeskPicture picture) {
    applyFrame(frame, picture);
    return picture;
}

// What the stage shows of a display, in global display coordinates.
Rect seenOf(const DeskPicture& picture, std::size_t display) {
    const DeskLayout layout = DeskLayout::of(picture, UsualWindow);
    const DisplayPlace& place = *layout.place(display);
    const Point corner = place.toGlobal({layout.stage().minX(), layout.stage().minY()});
    return {corner.x, corner.y, layout.stage().width() / place.scale, layout.stage().height() / place.scale};
}

WindowPicture windowAt(const Rect& frame) {
    WindowPicture window;
    window.frame = frame;
    return window;
}

TEST(FrameOfAScene, ShowsAllDisplaysOrOneWindow) {
    const DeskPicture picture = pictureWithPointerAt({700, 500});
    EXPECT_EQ(applied(Frame::everything, picture), picture);
    EXPECT_EQ(applied(Frame::window, picture), picture);
    const DeskPicture outside = pictureWithPointerAt({-700, 500});
    EXPECT_EQ(applied(Frame::display, outside), outside);
}

TEST(FrameOfAScene, LaysAGlassOverThePointer) {
    DeskPicture picture = pictureWithPointerAt({700, 500});
    const DeskPicture throughAGlass = applied(Frame::pointer, picture);
    picture.loupe = Point{700, 500};
    EXPECT_EQ(throughAGlass, picture);
}

TEST(FrameOfAScene, StaysWithinTheHousingOfItsDisplay) {
    const DeskPicture top = applied(Frame::whatIsOpen, pictureWithPointerAt({3400, -90}));
    const Rect seen = seenOf(top, 1);
    EXPECT_EQ(DeskLayout::of(top, UsualWindow).scale(), 1);
    EXPECT_NEAR(seen.maxX(), 3432 + 12, 8);
    EXPECT_NEAR(seen.minY(), -98 - 12, 8);
    EXPECT_GT(seen.minX(), 1512) << "nothing of the display beside it";
}

TEST(FrameOfAScene, TakesTheWholeWidthWhereThatIsLittleMore) {
    const DeskPicture picture = applied(Frame::whatIsOpen, pictureWithPointerAt({1400, 10}));
    const Rect seen = seenOf(picture, 0);
    EXPECT_GT(DeskLayout::of(picture, UsualWindow).scale(), 0.85);
    EXPECT_NEAR(seen.minX(), -12, 8);
    EXPECT_NEAR(seen.maxX(), 1512 + 12, 8);
}

TEST(FrameOfAScene, ShowsADisplayAloneWhereItWouldCutSomething) {
    DeskPicture picture = pictureWithPointerAt({700, 800}); // The Dock is at the lower edge.
    picture.windows = {windowAt({100, 20, 400, 900})};
    picture.dockMoveMark = DockMoveMark{};
    const DeskPicture alone = applied(Frame::whatIsOpen, picture);
    EXPECT_EQ(alone.displays, std::vector<DisplayPicture>{picture.displays[0]});
    EXPECT_EQ(alone.dockDisplay, 0U);
    EXPECT_FALSE(alone.dockMoveMark) << "the Dock came from a display that is not shown";
    EXPECT_FALSE(alone.shown);
    EXPECT_EQ(applied(Frame::display, picture).displays.size(), 1U);
}

TEST(FrameOfAScene, HasTheMenuAndTheToolTipOnTheDisplayThatItShowsAlone) {
    DeskPicture picture = pictureWithPointerAt({3400, -90});
    picture.dockDisplay = 1;
    picture.statusItems = {{}};
    picture.menu = MenuPicture{};
    picture.menu->display = 1;
    picture.menu->anchor = StatusItemAnchor{0};
    picture.menu->rows = {{MenuRowKind::item, "Quit"}};
    picture.toolTip = ToolTipPicture{1, 0, "Kestrune"};
    const DeskPicture alone = applied(Frame::display, picture);
    ASSERT_EQ(alone.displays.size(), 1U);
    EXPECT_EQ(alone.menu->display, 0U);
    EXPECT_EQ(alone.toolTip->display, 0U);
}

TEST(FrameOfAScene, ShowsAllDisplaysWhereSomethingIsOnTheOthers) {
    DeskPicture picture = pictureWithPointerAt({700, 500});
    picture.windows = {windowAt({100, 100, 400, 300}), windowAt({1600, 100, 400, 300})};
    const DeskPicture framed = applied(Frame::whatIsOpen, picture);
    EXPECT_EQ(framed, picture) << "windows are open on both";
    EXPECT_EQ(applied(Frame::display, picture), picture);
}

TEST(FrameOfAScene, ShowsWhatIsOpenWithThePointer) {
    DeskPicture picture = pictureWithPointerAt({300, 200});
    picture.windows = {windowAt({600, 300, 400, 300})};
    const Rect seen = seenOf(applied(Frame::whatIsOpen, picture), 0);
    EXPECT_TRUE(seen.contains({300, 200}));
    EXPECT_TRUE(seen.contains({600, 300}));
    EXPECT_TRUE(seen.contains({999, 599}));
}

} // namespace
} // namespace kestrune::desk
