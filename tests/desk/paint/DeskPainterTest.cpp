#include "desk/paint/desk/DeskPainter.h"

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DisplayPainter.h"
#include "desk/paint/desk/Marks.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/mac/Dock.h"
#include "desk/paint/mac/PointerPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/PaintedPicture.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace kestrune::desk {
namespace {

DeskLayout deskLayoutOf(const DeskPicture& picture) { return DeskLayout::of(picture, TestWindow); }

bool isBandColored(Pixel pixel) { return pixel.red > pixel.green + 60 && pixel.red > pixel.blue + 60; }

// Counts the pixels of the band's colour along the bottom edge of a display.
int bandPixels(const DeskPicture& picture, std::size_t display) {
    const Rect& bounds = picture.displays[display].bounds;
    const CloseUp painted{picture, {bounds.minX() + 756, bounds.maxY() - 200}};
    return painted.count({bounds.minX() + 556, bounds.maxY() - 5, 400, 5}, isBandColored);
}

TEST(DeskPainter, ColorsTheBandOnGuardedDisplaysOnly) {
    const DeskPicture picture = twoDisplays();
    EXPECT_EQ(bandPixels(picture, 1), 400 * 5);
    EXPECT_EQ(bandPixels(picture, 0), 0);
}

TEST(DeskPainter, ShowsNoBandWhileTheGuardIsOffOrWithoutPermission) {
    DeskPicture picture = twoDisplays();
    for (const GuardState guard : {GuardState::off, GuardState::noPermission}) {
        picture.guard = guard;
        EXPECT_EQ(bandPixels(picture, 1), 0);
    }
}

TEST(DeskPainter, ShowsTheBandAsDeepAsItIs) {
    DeskPicture picture = twoDisplays();
    const Rect& bounds = picture.displays[1].bounds;
    EXPECT_EQ(bandArea(bounds, 977), (Rect{1512, 977, 1920, 5}));
    EXPECT_EQ(bandArea(bounds, 442).height(), 540);
    EXPECT_EQ(bandArea(bounds, -598), bounds);
    const CloseUp painted{picture, {2400, 900}};
    EXPECT_TRUE(isBandColored(painted.at({2400, 977.5})));
    EXPECT_FALSE(isBandColored(painted.at({2400, 976.5})));
    // One scale for everything.
    const DisplayPlace place = *deskLayoutOf(picture).place(1);
    picture.displays[1].bandTop = 442;
    const PaintedPicture deep{picture};
    const double top = place.screen.minY() + place.screen.height() / 2;
    EXPECT_TRUE(isBandColored(deep.at({place.screen.minX() + 100, top + 2})));
    EXPECT_FALSE(isBandColored(deep.at({place.screen.minX() + 100, top - 3})));
}

TEST(DeskPainter, PutsTheTipOfABlackArrowExactlyAtThePointer) {
    const DeskPicture picture = twoDisplays();
    DeskPicture elsewhere = picture;
    elsewhere.pointer = {3000, 200};
    const auto isBlack = [](Pixel pixel) { return isNear(pixel, 0, 0, 0, 40); };
    for (const double scale : {1.0, 2.0}) {
        const CloseUp painted{picture, picture.pointer, scale};
        const auto changed = differenceOf(painted, CloseUp{elsewhere, picture.pointer, scale});
        ASSERT_TRUE(changed);
        EXPECT_TRUE(encloses(pointerExtent(picture.pointer), *changed));
        EXPECT_TRUE(isBlack(painted.at({picture.pointer.x + 2.5, picture.pointer.y + 8}))) << scale;
        EXPECT_FALSE(isBlack(painted.at({picture.pointer.x + 2.5, picture.pointer.y - 2}))) << scale;
        EXPECT_TRUE(isNear(painted.at({picture.pointer.x - 0.5, picture.pointer.y + 8}), 255, 255, 255, 60))
            << scale;
    }
}

TEST(DeskPainter, ShowsThePointerToScaleAndNothingOfItOnAHousing) {
    DeskPicture picture = twoDisplays();
    DeskPicture elsewhere = picture;
    elsewhere.pointer = {200, 200};
    const DeskLayout layout = deskLayoutOf(picture);
    picture.pointer = {2400, 500};
    const auto changed = differenceOf(PaintedPicture{picture}, PaintedPicture{elsewhere});
    ASSERT_TRUE(changed); // from one place to the other
    const Point tip = layout.place(1)->toWindow(picture.pointer);
    EXPECT_NEAR(changed->maxX(), tip.x + 16 * layout.scale(), 4);
    picture.pointer = {2400, 980};
    const auto clipped = differenceOf(CloseUp(picture, {2400, 900}), CloseUp(elsewhere, {2400, 900}));
    ASSERT_TRUE(clipped);
    EXPECT_LE(clipped->maxY(), 982);
}

TEST(DeskPainter, PaintsTheDockOnItsDisplayOnly) {
    DeskPicture picture = twoDisplays();
    picture.dockDisplay = std::nullopt;
    const PaintedPicture without{picture};
    const DeskLayout layout = deskLayoutOf(picture);
    for (const std::size_t display : {0U, 1U}) {
        picture.dockDisplay = display;
        const std::optional<Rect> dock = differenceOf(PaintedPicture{picture}, without);
        ASSERT_TRUE(dock);
        const DisplayPlace& place = *layout.place(display);
        EXPECT_TRUE(encloses(place.screen, *dock, 1));
        const Rect panel = dockPlace(picture.displays[display].bounds, picture).panel;
        EXPECT_TRUE(encloses(picture.displays[display].bounds, panel));
        EXPECT_TRUE(encloses(*dock, place.toWindow(panel), 1));
        EXPECT_NEAR(centerOf(panel).x, centerOf(picture.displays[display].bounds).x, 1e-9);
    }
}

TEST(DeskPainter, HasTheApplicationsIconInTheDockWhileItHasAPlaceThere) {
    DeskPicture picture = twoDisplays();
    const Rect& bounds = picture.displays[0].bounds;
    const DockPlace without = dockPlace(bounds, picture);
    EXPECT_FALSE(without.icon);
    const IconFile icon{rgb(0x00FF00)};
    picture.dockIcon = icon.path();
    const DockPlace with = dockPlace(bounds, picture);
    ASSERT_TRUE(with.icon);
    EXPECT_EQ(with.icon->size, (Size{52, 52}));
    EXPECT_GT(with.panel.width(), without.panel.width() + 52);
    const CloseUp painted{picture, centerOf(with.panel)};
    EXPECT_TRUE(isNear(painted.at(centerOf(*with.icon)), 0, 255, 0, 4));
}

TEST(DeskPainter, MakesTheDockSmallerWhereTheDisplayIsTooNarrowForIt) {
    const DeskPicture picture = twoDisplays();
    EXPECT_EQ(dockPlace({0, 0, 1512, 982}, picture).scale, 1);
    for (const Size size : {Size{400, 900}, Size{900, 200}, Size{60, 60}}) {
        const Rect display{100, 100, size.width, size.height};
        const DockPlace dock = dockPlace(display, picture);
        EXPECT_LT(dock.scale, 1);
        EXPECT_TRUE(encloses(display, dock.panel));
        for (const Rect& place : dock.icons) {
            EXPECT_TRUE(encloses(dock.panel, place));
        }
    }
}

TEST(DeskPainter, ShowsWhereThePointerWasHeldOnThatDisplayUntilTheMarkHasFaded) {
    DeskPicture picture = twoDisplays();
    const PaintedPicture without{picture};
    picture.heldMark = HeldMark{{2400, 977}, 0.2};
    const std::optional<Rect> mark = differenceOf(PaintedPicture{picture}, without);
    ASSERT_TRUE(mark);
    const DeskLayout layout = deskLayoutOf(picture);
    EXPECT_TRUE(encloses(layout.place(1)->screen, *mark));
    const Point held = layout.place(1)->toWindow(Point{2400, 977});
    EXPECT_NEAR(centerOf(*mark).x, held.x, 2);
    EXPECT_LE(mark->maxY(), held.y + 1) << "above the band";
    picture.heldMark->age = 1;
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, without));
}

TEST(DeskPainter, ShowsAPlaceThroughAGlassWhereTheDisplaysAreSmall) {
    DeskPicture picture = twoDisplays();
    picture.pointer = {2400, 500};
    const PaintedPicture without{picture};
    const DeskLayout layout = deskLayoutOf(picture);
    ASSERT_LT(layout.scale(), 0.6);
    for (const Point place : {Point{2400, 500}, Point{2400, 977}, Point{1520, -60}, Point{300, 400}}) {
        picture.loupe = place;
        const PaintedPicture painted{picture};
        const std::optional<Rect> glass = differenceOf(painted, without);
        ASSERT_TRUE(glass);
        EXPECT_TRUE(encloses(layout.stage(), *glass, 1));
        const Point shown = layout.placeContaining(place)->toWindow(place);
        EXPECT_FALSE(glass->contains(shown)) << "it is beside it";
    }
    // The arrow's black is ten points below its tip.
    picture.loupe = picture.pointer;
    const auto isBlack = [](Pixel pixel) { return isNear(pixel, 0, 0, 0, 12); };
    const Rect everything{0, layout.stage().minY(), TestWindow.width, layout.stage().height()};
    const int small = without.count(everything, isBlack);
    EXPECT_GT(PaintedPicture{picture}.count(everything, isBlack), small + 300);
    // It enlarges what is there, not the desk's own marks.
    DeskPicture marked = picture;
    marked.heldMark = HeldMark{picture.pointer, 0.2};
    const std::optional<Rect> mark = differenceOf(PaintedPicture{marked}, PaintedPicture{picture});
    ASSERT_TRUE(mark);
    EXPECT_LE(mark->width(), 130);
}

TEST(DeskPainter, NeedsNoGlassForAPlaceThatIsNoneOrLargeEnough) {
    DeskPicture picture = twoDisplays();
    const PaintedPicture without{picture};
    picture.loupe = Point{-5000, 3};
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, without));
    picture.shown = Rect{2400, 500, 0, 0};
    const PaintedPicture closeUp{picture};
    picture.loupe = Point{2400, 500};
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, closeUp));
}

TEST(DeskPainter, ShowsTheStageAlone) {
    DeskPicture picture = twoDisplays();
    picture.story = "A story";
    picture.stageOnly = true;
    const DeskLayout layout = deskLayoutOf(picture);
    EXPECT_EQ(layout.stage(), (Rect{0, 0, TestWindow.width, TestWindow.height}));
    const PaintedPicture painted{picture};
    DeskPicture other = picture;
    other.story = "Another";
    other.whatHappened = "Something else";
    other.events += 5;
    other.keys.clear();
    EXPECT_FALSE(differenceOf(painted, PaintedPicture{other}));
    other.displays[0].name = "Renamed";
    EXPECT_TRUE(differenceOf(painted, PaintedPicture{other})) << "its captions stay";
}

TEST(DeskPainter, MarksWhatHappenedWhenSomethingDid) {
    DeskPicture picture = twoDisplays();
    DeskPicture warning = picture;
    warning.occurrence = Occurrence::warning;
    EXPECT_TRUE(differenceOf(PaintedPicture{picture}, PaintedPicture{warning}));
    picture.whatHappened.clear();
    warning.whatHappened.clear();
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, PaintedPicture{warning}));
}

TEST(DeskPainter, DrawsATrailForAMovedDockUntilItHasFaded) {
    DeskPicture picture = twoDisplays();
    picture.dockDisplay = 1;
    const PaintedPicture without{picture};
    picture.dockMoveMark = DockMoveMark{0, 1, 0};
    const std::optional<Rect> trail = differenceOf(PaintedPicture{picture}, without);
    ASSERT_TRUE(trail);
    const DeskLayout layout = deskLayoutOf(picture);
    const Rect left = layout.place(0)->toWindow(dockPlace(picture.displays[0].bounds, picture).panel);
    EXPECT_TRUE(encloses(*trail, left, 2));
    EXPECT_GT(trail->maxX(), layout.place(1)->screen.minX() + layout.place(1)->screen.width() / 2 - 8);
    picture.dockMoveMark->age = 1;
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, without));
    picture.dockMoveMark = DockMoveMark{1, 1, 0};
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, without));
}

TEST(DeskPainter, LeavesOutKeysThatDoNotFit) {
    DeskPicture picture = twoDisplays();
    picture.keys.assign(12, {"Esc", "quit the simulated session"});
    DeskPicture withoutKeys = picture;
    withoutKeys.keys.clear();
    const std::optional<Rect> keys = differenceOf(PaintedPicture{picture}, PaintedPicture{withoutKeys});
    ASSERT_TRUE(keys);
    EXPECT_LE(keys->maxX(), TestWindow.width - 27);
    EXPECT_TRUE(encloses(deskLayoutOf(picture).footer(), *keys));
}

TEST(DeskPainter, WrapsTheKeysWhereOneLineHasNoRoomForThem) {
    DeskPicture picture = twoDisplays();
    picture.keys = {{"1–9", "pin a display"},
                    {"G", "guard on or off"},
                    {"U", "unplug"},
                    {"P", "plug in"},
                    {"A", "permission"},
                    {"T", "tap timeout"},
                    {"+ −", "band"},
                    {"D", "dark"},
                    {"S", "save picture"},
                    {"H", "hide keys"},
                    {"M", "menu"},
                    {"R", "relaunch"},
                    {"O", "open settings"},
                    {"Q", "quit"}};
    DeskPicture withoutLast = picture;
    withoutLast.keys.back() = {"W", "leave"};
    const std::vector<std::pair<Size, double>> windows{
        {{1600, 900}, 30}, {{1100, 700}, 60}, {{900, 600}, 60}};
    for (const auto& [window, tallest] : windows) {
        const PaintedPicture painted{picture, window};
        EXPECT_TRUE(differenceOf(painted, PaintedPicture{withoutLast, window})) << window.width;
        DeskPicture withoutKeys = picture;
        withoutKeys.keys.clear();
        const std::optional<Rect> keys = differenceOf(painted, PaintedPicture{withoutKeys, window});
        ASSERT_TRUE(keys);
        EXPECT_TRUE(encloses(DeskLayout::of(picture, window).footer(), *keys)) << window.width;
        EXPECT_LE(keys->maxX(), window.width - 27);
        EXPECT_LE(keys->height(), tallest);
        EXPECT_GE(keys->height(), tallest - 10);
    }
}

TEST(DeskPainter, IsLightOrDark) {
    DeskPicture picture = twoDisplays();
    EXPECT_GT(PaintedPicture{picture}.at(5, 300).red, 200);
    picture.dark = true;
    EXPECT_LT(PaintedPicture{picture}.at(5, 300).red, 70);
}

TEST(DeskPainter, KeepsWhatStandsBehindAMenuWhileTheHighlightMoves) {
    const DeskPicture picture = withMenu();
    const std::vector<std::function<void(DeskPicture&)>> changes{
        [](DeskPicture& changed) { changed.menu->rows[0].highlighted = true; },
        [](DeskPicture& changed) { changed.menu->rows.pop_back(); },
        [](DeskPicture& changed) { changed.menu.reset(); },
        [](DeskPicture& changed) { changed.clock = "Wed 11:05"; },
        [](DeskPicture& changed) { changed.windows = withWindow().windows; },
        [](DeskPicture& changed) {
            changed.toolTip = ToolTipPicture{0, 0, "A tool tip"};
        },
        [](DeskPicture& changed) {
            changed.pointer = {1, 1};
        },
    };
    for (std::size_t index = 0; index < changes.size(); ++index) {
        DeskPicture changed = picture;
        changes[index](changed);
        EXPECT_NE(changed, picture) << index;
        EXPECT_EQ(withoutWhatMoves(changed), withoutWhatMoves(picture)) << index;
    }
}

TEST(DeskPainter, PaintsTheSameWithWhatItRememberedAsAnew) {
    const std::vector<std::function<void(DeskPicture&)>> changes{
        [](DeskPicture& picture) {
            picture.pointer = {2000, 300};
        },
        [](DeskPicture& picture) { picture.events = 123456; },
        [](DeskPicture& picture) { picture.held = 17; },
        [](DeskPicture& picture) { picture.dockMoves = 2; },
        [](DeskPicture& picture) { picture.whatHappened = "Something else."; },
        [](DeskPicture& picture) { picture.occurrence = Occurrence::warning; },
        [](DeskPicture& picture) {
            picture.heldMark = HeldMark{{2000, 977}, 0.5};
        },
        [](DeskPicture& picture) { picture.heldMark.reset(); },
        [](DeskPicture& picture) {
            picture.dockMoveMark = DockMoveMark{0, 1, 0.2};
        },
        [](DeskPicture& picture) { picture.dockDisplay = 1; },
        [](DeskPicture& picture) { picture.dockIcon = "/no/such/icon.png"; },
        [](DeskPicture& picture) {
            picture.shown = Rect{2000, 700, 300, 200};
        },
        [](DeskPicture& picture) {
            picture.shown = Rect{2100, 700, 0, 0};
        },
        [](DeskPicture& picture) { picture.shown->origin.x += 31; },
        [](DeskPicture& picture) { picture.shown.reset(); },
        [](DeskPicture& picture) { picture.guard = GuardState::off; },
        [](DeskPicture& picture) { picture.displays[1].bandTop = 700; },
        [](DeskPicture& picture) { picture.guard = GuardState::on; },
        [](DeskPicture& picture) { std::swap(picture.displays[0].pinned, picture.displays[1].pinned); },
        [](DeskPicture& picture) { picture.displays[0].name = "Renamed"; },
        [](DeskPicture& picture) { picture.displays[0].wallpaper = 3; },
        [](DeskPicture& picture) { picture.displays[1].bounds.origin.y = -300; },
        [](DeskPicture& picture) { picture.clock = "Wed 11:05"; },
        [](DeskPicture& picture) { picture.keys.pop_back(); },
        [](DeskPicture& picture) {
            picture.mainMenuTitles = {"Kestrune", "File"};
        },
        [](DeskPicture& picture) {
            picture.statusItems = withMenu().statusItems;
            picture.menu = withMenu().menu;
        },
        [](DeskPicture& picture) { picture.menu->rows[0].highlighted = true; },
        [](DeskPicture& picture) { picture.menu->rows.pop_back(); },
        [](DeskPicture& picture) { picture.menu->anchor = MainMenuTitleAnchor{1}; },
        [](DeskPicture& picture) { picture.menu->display = 0; },
        [](DeskPicture& picture) { picture.windows = withWindow().windows; },
        [](DeskPicture& picture) { picture.windows[0].pressedElement = Push; },
        [](DeskPicture& picture) { picture.windows[0].isKey = false; },
        [](DeskPicture& picture) { picture.windows[0].look = WindowLook::sidebar; },
        [](DeskPicture& picture) { picture.windows[0].look = WindowLook::paper; },
        [](DeskPicture& picture) { picture.windows[0].frame.origin.x += 1500; },
        [](DeskPicture& picture) { picture.windows.clear(); },
        [](DeskPicture& picture) { picture.menu.reset(); },
        [](DeskPicture& picture) {
            picture.toolTip = ToolTipPicture{0, 0, "A tool tip"};
        },
        [](DeskPicture& picture) { picture.toolTip->text = "Another tool tip"; },
        [](DeskPicture& picture) { picture.story = "A story begins."; },
        [](DeskPicture& picture) { picture.dark = true; },
        [](DeskPicture& picture) { picture.displays.pop_back(); },
        [](DeskPicture& picture) { picture.displays.clear(); },
    };
    DeskPainter painter;
    DeskPicture picture = twoDisplays();
    const PaintedPicture first{painter, picture, TestWindow};
    EXPECT_FALSE(differenceOf(first, PaintedPicture{picture}));
    for (std::size_t index = 0; index < changes.size(); ++index) {
        const PaintedPicture before{picture};
        changes[index](picture);
        const PaintedPicture after{picture};
        EXPECT_TRUE(differenceOf(before, after)) << "change " << index << " is not visible";
        EXPECT_FALSE(differenceOf(PaintedPicture{painter, picture, TestWindow}, after)) << "change " << index;
    }
    constexpr Size OtherWindow{900, 600};
    EXPECT_FALSE(
        differenceOf(PaintedPicture{painter, picture, OtherWindow}, PaintedPicture{picture, OtherWindow}));
}

} // namespace
} // namespace kestrune::desk
