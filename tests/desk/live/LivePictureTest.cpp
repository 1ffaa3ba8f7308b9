#include "desk/live/world/LivePicture.h"

#include "desk/live/hand/DeskKeys.h"
#include "tests/desk/live/LiveFixture.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

TEST(LivePicture, ShowsTheDisplaysWithPinAndBands) {
    LiveDeskSetup setup;
    setup.pinned = 1;
    LiveDesk desk(setup);
    const DeskPicture picture = pictureOf(desk);
    ASSERT_EQ(picture.displays.size(), 2U);
    EXPECT_EQ(picture.displays[0].name, "Built-in Display");
    EXPECT_EQ(picture.displays[0].bounds, (Rect{0, 0, 1512, 982}));
    EXPECT_FALSE(picture.displays[0].pinned);
    EXPECT_EQ(picture.displays[0].bandTop, 977);
    EXPECT_TRUE(picture.displays[1].pinned);
    EXPECT_EQ(picture.displays[1].bandTop, std::nullopt);
    EXPECT_NE(picture.displays[0].wallpaper, picture.displays[1].wallpaper);
    EXPECT_EQ(picture.dockDisplay, 1U);
    EXPECT_EQ(picture.pointer, (Point{756, 491}));
    EXPECT_EQ(picture.guard, GuardState::on);
    EXPECT_TRUE(picture.keys.empty());
    EXPECT_EQ(picture.clock, "Tue 9:41");
    EXPECT_EQ(picture.whatHappened, desk.news().text);
}

TEST(LivePicture, ShowsTheBandAsDeepAsItIs) {
    LiveDeskSetup setup;
    setup.margin = 100;
    LiveDesk desk(setup);
    EXPECT_EQ(pictureOf(desk).displays[1].bandTop, 881);
    desk.session().defaults().set("blockMargin", sim::PropertyList{-3.0});
    EXPECT_EQ(pictureOf(desk).displays[1].bandTop, 977);
}

TEST(LivePicture, ShowsNoBandOnASingleDisplay) {
    LiveDeskSetup setup;
    setup.displays = {{0, 0, 1512, 982}};
    LiveDesk desk(setup);
    EXPECT_EQ(pictureOf(desk).displays[0].bandTop, std::nullopt);
}

TEST(LivePicture, KeepsAWallpaperWithItsDisplay) {
    LiveDesk desk({});
    const std::size_t wallpaper = pictureOf(desk).displays[1].wallpaper;
    desk.unplugUnderPointer();
    EXPECT_EQ(pictureOf(desk).displays[0].wallpaper, wallpaper);
}

TEST(LivePicture, ShowsTheStateOfTheGuard) {
    LiveDesk desk({});
    desk.togglePermission();
    EXPECT_EQ(pictureOf(desk).guard, GuardState::noPermission);
    desk.togglePermission();
    desk.toggleGuard();
    EXPECT_EQ(pictureOf(desk).guard, GuardState::off);
    desk.quitOrLaunch();
    EXPECT_EQ(pictureOf(desk).guard, GuardState::off);
}

TEST(LivePicture, ShowsAGuardThatWaitsForTheNextLookAtThePermission) {
    LiveDeskSetup setup;
    setup.permission = sim::Permission::switchedOff;
    LiveDesk desk(setup);
    EXPECT_EQ(pictureOf(desk).guard, GuardState::noPermission);
    desk.togglePermission();
    EXPECT_EQ(pictureOf(desk).guard, GuardState::off) << "it has not started yet";
    desk.advance(std::chrono::seconds(1));
    EXPECT_EQ(pictureOf(desk).guard, GuardState::on);
}

TEST(LivePicture, CountsAndMarksAHeldPointerUntilTheMarkHasFaded) {
    LiveDesk desk({});
    push(desk, Display2Edge);
    DeskPicture picture = pictureOf(desk);
    EXPECT_EQ(picture.events, 41U);
    EXPECT_EQ(picture.held, 40U);
    EXPECT_EQ(picture.dockMoves, 0U);
    EXPECT_EQ(picture.occurrence, Occurrence::held);
    ASSERT_TRUE(picture.heldMark);
    EXPECT_EQ(picture.heldMark->location, (Point{2472, 977}));
    EXPECT_EQ(picture.heldMark->age, 0);

    desk.advance(std::chrono::milliseconds(450));
    EXPECT_EQ(pictureOf(desk).heldMark->age, 0.5);
    desk.advance(std::chrono::milliseconds(450));
    EXPECT_FALSE(pictureOf(desk).heldMark);
}

TEST(LivePicture, MarksAMoveOfTheDockUntilItHasFaded) {
    LiveDesk desk(unguarded());
    push(desk, Display2Edge);
    const DeskPicture picture = pictureOf(desk);
    EXPECT_EQ(picture.dockDisplay, 1U);
    EXPECT_EQ(picture.dockMoves, 1U);
    ASSERT_TRUE(picture.dockMoveMark);
    EXPECT_EQ(picture.dockMoveMark->from, 0U);
    EXPECT_EQ(picture.dockMoveMark->to, 1U);
    desk.advance(std::chrono::seconds(3));
    EXPECT_FALSE(pictureOf(desk).dockMoveMark);
}

TEST(LivePicture, IsEmptyWithoutDisplays) {
    LiveDeskSetup setup;
    setup.displays = {{0, 0, 800, 600}};
    LiveDesk desk(setup);
    desk.unplugUnderPointer();
    const DeskPicture picture = pictureOf(desk);
    EXPECT_TRUE(picture.displays.empty());
    EXPECT_FALSE(picture.dockDisplay);
}

TEST(LivePicture, ShowsTheTimeOfDay) {
    LiveDesk desk({});
    desk.advance(std::chrono::minutes(19));
    EXPECT_EQ(pictureOf(desk).clock, "Tue 10:00");
    desk.advance(std::chrono::hours(14) + std::chrono::minutes(5));
    EXPECT_EQ(pictureOf(desk).clock, "Tue 0:05");
}

TEST(LivePicture, TellsWhatCameOfARecording) {
    replay::SimulatedDesk desk({{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}}, 0, true, std::nullopt});
    replay::Report report;
    report.events = 10;
    report.changed = 3;
    DeskPicture picture = pictureAfterReplay(desk, report);
    EXPECT_EQ(picture.whatHappened, "The recording is over: the Dock stayed on Built-in Display");
    EXPECT_EQ(picture.occurrence, Occurrence::held);
    EXPECT_EQ(picture.events, 10U);
    EXPECT_EQ(picture.held, 3U);
    EXPECT_EQ(picture.displays.size(), 2U);
    EXPECT_TRUE(picture.keys.empty());

    report.dockMoves = 1;
    desk.session().dock().place(2);
    picture = pictureAfterReplay(desk, report);
    EXPECT_EQ(picture.whatHappened, "The recording is over: the Dock moved 1 time and is on Display 2");
    EXPECT_EQ(picture.occurrence, Occurrence::dockMoved);

    report.dockMoves = 1200;
    report.violations = 1;
    picture = pictureAfterReplay(desk, report);
    EXPECT_EQ(picture.whatHappened, "The recording is over: the Dock moved 1,200 times and is on Display 2; "
                                    "1 event against the rule");
    EXPECT_EQ(picture.occurrence, Occurrence::warning);
}

} // namespace
} // namespace kestrune::desk
