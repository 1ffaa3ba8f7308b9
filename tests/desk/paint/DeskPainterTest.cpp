#include "desk/paint/DeskPainter.h"

#include "desk/paint/BandPainter.h"
#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DisplayPainter.h"
#include "desk/paint/DockPainter.h"
#include "tests/desk/paint/PaintedPicture.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace kestrune::desk {
namespace {

DeskLayout deskLayoutOf(const DeskPicture& picture) { return DeskLayout::of(picture, TestWindow); }

bool isBandColored(Pixel pixel) { return pixel.red > pixel.green + 60 && pixel.red > pixel.blue + 60; }

// Counts the pixels of the band's colour along the middle of the lowest few pixels of a display's screen.
int bandPixels(const PaintedPicture& painted, const DisplayPlace& place) {
    return painted.count({place.screen.minX() + 20, place.screen.maxY() - 4, place.screen.width() - 40, 3},
                         isBandColored);
}

CaptionPlace captionOf(const DeskPicture& picture, std::size_t display) {
    const std::optional<Surface> surface = Surface::create({10, 10}, 1);
    TextPainter text{surface->context()};
    const DeskLayout layout = deskLayoutOf(picture);
    const Canvas canvas{surface->context(), text, paletteFor(picture.dark)};
    return captionPlace(canvas, *layout.place(display), layout.scale(), picture.displays[display]);
}

bool isPinColored(Pixel pixel) {
    const Color accent = paletteFor(false).accent;
    return isNear(pixel, static_cast<int>(std::lround(accent.red * 255)),
                  static_cast<int>(std::lround(accent.green * 255)),
                  static_cast<int>(std::lround(accent.blue * 255)), 2);
}

TEST(DeskPainter, ColorsTheBandOnGuardedDisplaysOnly) {
    const DeskPicture picture = twoDisplays();
    const PaintedPicture painted{picture};
    const DeskLayout layout = deskLayoutOf(picture);
    const double areaOfRight = (layout.place(1)->screen.width() - 40) * 3;
    EXPECT_GT(bandPixels(painted, *layout.place(1)), areaOfRight * 0.9);
    EXPECT_EQ(bandPixels(painted, *layout.place(0)), 0);
}

TEST(DeskPainter, ShowsNoBandWhileTheGuardIsOffOrWithoutPermission) {
    DeskPicture picture = twoDisplays();
    const DeskLayout layout = deskLayoutOf(picture);
    for (const GuardState guard : {GuardState::off, GuardState::noPermission}) {
        picture.guard = guard;
        EXPECT_EQ(bandPixels(PaintedPicture{picture}, *layout.place(1)), 0);
    }
}

TEST(DeskPainter, KeepsAThinBandVisibleAndADeepBandToScale) {
    const DeskPicture picture = twoDisplays();
    const DisplayPlace place = *deskLayoutOf(picture).place(1);
    const Rect thin = bandArea(place, place.bounds.maxY() - 1);
    EXPECT_GE(thin.height(), 4);
    EXPECT_EQ(thin.maxY(), place.screen.maxY());
    const Rect deep = bandArea(place, place.bounds.maxY() - 540);
    EXPECT_NEAR(deep.height(), place.screen.height() / 2, 1e-9);
    EXPECT_EQ(bandArea(place, place.bounds.minY() - 500), place.screen);
}

TEST(DeskPainter, PutsTheBadgeOnThePinnedDisplayOnly) {
    DeskPicture picture = twoDisplays();
    for (const std::size_t pinned : {0U, 1U}) {
        picture.displays[0].pinned = pinned == 0;
        picture.displays[1].pinned = pinned == 1;
        const PaintedPicture painted{picture};
        const DeskLayout layout = deskLayoutOf(picture);
        const CaptionPlace caption = captionOf(picture, pinned);
        ASSERT_TRUE(caption.badge);
        EXPECT_TRUE(encloses(layout.place(pinned)->screen, *caption.badge));
        EXPECT_TRUE(isPinColored(
            painted.at({caption.badge->minX() + caption.badge->width() / 2, caption.badge->minY() + 3})));
        EXPECT_FALSE(captionOf(picture, 1 - pinned).badge);
        const Rect otherScreen = layout.place(1 - pinned)->screen;
        EXPECT_EQ(
            painted.count({otherScreen.minX(), otherScreen.minY(), otherScreen.width(), 80}, isPinColored),
            0);
    }
}

TEST(DeskPainter, KeepsTheCaptionInsideTheScreenWhateverTheNameAndSize) {
    DeskPicture picture = twoDisplays();
    picture.displays[0].name =
        "A display with a name that is much longer than anybody would ever want to read";
    for (const double width : {1512.0, 900.0, 400.0, 240.0, 120.0, 30.0}) {
        picture.displays[0].bounds = {1512 - width, 0, width, 982};
        const CaptionPlace caption = captionOf(picture, 0);
        const Rect screen = deskLayoutOf(picture).place(0)->screen;
        ASSERT_TRUE(caption.badge) << width;
        EXPECT_TRUE(encloses(screen, *caption.badge)) << width;
        if (caption.caption) {
            EXPECT_TRUE(encloses(screen, *caption.caption)) << width;
            EXPECT_LE(caption.caption->maxX(), caption.badge->minX()) << width;
        }
    }
}

TEST(DeskPainter, PutsTheTipOfABlackArrowExactlyAtThePointer) {
    DeskPicture picture = twoDisplays();
    DeskPicture elsewhere = picture;
    elsewhere.pointer = {3000, 200};
    for (const double scale : {1.0, 2.0}) {
        const PaintedPicture painted{picture, TestWindow, scale};
        const PaintedPicture without{elsewhere, TestWindow, scale};
        const Point tip = deskLayoutOf(picture).toWindow(picture.pointer);
        const auto isBlack = [](Pixel pixel) { return isNear(pixel, 0, 0, 0, 40); };
        int left = painted.width();
        int top = painted.height();
        for (int y = 0; y < painted.height(); ++y) {
            for (int x = 0; x < static_cast<int>(600 * scale); ++x) {
                if (isBlack(painted.at(x, y)) && !isBlack(without.at(x, y))) {
                    left = std::min(left, x);
                    top = std::min(top, y);
                }
            }
        }
        EXPECT_NEAR(left, tip.x * scale, 1.5) << scale;
        EXPECT_NEAR(top, tip.y * scale, 3.5) << scale; // The very tip is narrower than a pixel.
        EXPECT_TRUE(isBlack(painted.at({(tip.x + 3) * scale, (tip.y + 10) * scale}))) << scale;
        EXPECT_TRUE(isNear(painted.at({(tip.x - 0.75) * scale, (tip.y + 10) * scale}), 255, 255, 255, 60))
            << scale;
    }
}

TEST(DeskPainter, KeepsThePointersSizeWhenDisplaysAreDrawnSmaller) {
    DeskPicture large = twoDisplays();
    large.displays.pop_back();
    large.pointer = {700, 500};
    DeskPicture small = large;
    small.displays.push_back({.name = "Far", .bounds = {9000, 0, 1000, 1000}, .bandTop = std::nullopt});
    const auto blackPixels = [](const DeskPicture& picture) {
        const Point tip = deskLayoutOf(picture).toWindow(picture.pointer);
        return PaintedPicture{picture}.count({tip.x, tip.y, 16, 24},
                                             [](Pixel pixel) { return isNear(pixel, 0, 0, 0, 30); });
    };
    EXPECT_GT(blackPixels(large), 60);
    EXPECT_NEAR(blackPixels(large), blackPixels(small), 12);
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
        EXPECT_TRUE(encloses(layout.place(display)->slot, *dock, 4));
        const Rect panel = dockPlace(*layout.place(display), layout.scale()).panel;
        EXPECT_TRUE(encloses(layout.place(display)->screen, panel));
        EXPECT_TRUE(encloses(*dock, panel, 1));
        EXPECT_NEAR(panel.minX() + panel.width() / 2,
                    layout.place(display)->screen.minX() + layout.place(display)->screen.width() / 2, 1e-9);
    }
}

TEST(DeskPainter, KeepsTheDockRecognisableOnSmallDisplays) {
    std::vector<Rect> bounds;
    for (int index = 0; index < 16; ++index) {
        bounds.push_back({index % 4 * 1920.0, std::floor(index / 4.0) * 1080.0, 1920, 1080});
    }
    const DeskLayout layout{{1440, 900}, bounds};
    EXPECT_GE(dockPlace(*layout.place(5), layout.scale()).iconSide, 18);
}

TEST(DeskPainter, ShowsWhereThePointerWasHeldOnThatDisplayUntilTheMarkHasFaded) {
    DeskPicture picture = twoDisplays();
    const PaintedPicture without{picture};
    picture.heldMark = HeldMark{{2400, 977}, 0.2};
    const std::optional<Rect> mark = differenceOf(PaintedPicture{picture}, without);
    ASSERT_TRUE(mark);
    const DeskLayout layout = deskLayoutOf(picture);
    EXPECT_TRUE(encloses(layout.place(1)->screen, *mark));
    EXPECT_NEAR(mark->minX() + mark->width() / 2, layout.toWindow({2400, 977}).x, 2);
    picture.heldMark->age = 1;
    EXPECT_FALSE(differenceOf(PaintedPicture{picture}, without));
}

TEST(DeskPainter, DrawsATrailForAMovedDockUntilItHasFaded) {
    DeskPicture picture = twoDisplays();
    picture.dockDisplay = 1;
    const PaintedPicture without{picture};
    picture.dockMoveMark = DockMoveMark{0, 1, 0};
    const std::optional<Rect> trail = differenceOf(PaintedPicture{picture}, without);
    ASSERT_TRUE(trail);
    const DeskLayout layout = deskLayoutOf(picture);
    EXPECT_TRUE(encloses(*trail, dockPlace(*layout.place(0), layout.scale()).panel, 2));
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
        [](DeskPicture& changed) { changed.permissionDialog = withDialog().permissionDialog; },
        [](DeskPicture& changed) { changed.settingsPane = withPane().settingsPane; },
        [](DeskPicture& changed) { changed.pressed = PaneCloseTarget{}; },
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
    // The menu bar shows what the menu hangs from.
    DeskPicture closed = picture;
    closed.menu.reset();
    EXPECT_NE(withoutWhatMoves(closed), withoutWhatMoves(picture));
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
        [](DeskPicture& picture) { picture.settingsPane = withPane().settingsPane; },
        [](DeskPicture& picture) { picture.settingsPane->rows[1].isOn = true; },
        [](DeskPicture& picture) { picture.settingsPane->display = 1; },
        [](DeskPicture& picture) { picture.pressed = PaneSwitchTarget{0}; },
        [](DeskPicture& picture) { picture.settingsPane.reset(); },
        [](DeskPicture& picture) { picture.permissionDialog = withDialog().permissionDialog; },
        [](DeskPicture& picture) { picture.pressed = DialogButtonTarget{DialogButton::deny}; },
        [](DeskPicture& picture) { picture.permissionDialog.reset(); },
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
