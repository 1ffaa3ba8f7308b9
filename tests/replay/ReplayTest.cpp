#include "replay/Replay.h"

#include "replay/StoredChoices.h"
#include "tests/replay/recording/MadeUpRecording.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kestrune::replay {
namespace {

using std::chrono::milliseconds;

const std::vector<Rect> SideBySide = {{0, 0, 1000, 500}, {1000, 0, 1000, 500}};

DeskSetup setup(bool guardOn) { return {SideBySide, 0, guardOn, std::nullopt}; }

// Recorded on a display of 300 by 75: replayed one and a half times as large as both displays together, each
// pixel is ten points.
Recording recordingOf(std::vector<Motion> motions) { return {{300, 75}, std::move(motions), {1, 2, 3}}; }

std::vector<sim::Delivery> deliveriesOf(const Recording& recording, const DeskSetup& deskSetup) {
    SimulatedDesk desk(deskSetup);
    std::vector<sim::Delivery> deliveries;
    play(recording, desk, [&](std::uint64_t index, const sim::Delivery& delivery) {
        EXPECT_EQ(index, deliveries.size());
        deliveries.push_back(delivery);
    });
    return deliveries;
}

TEST(Replay, MovesThePointerByTheStretchedDifferences) {
    const Recording recording = recordingOf({{EventType::mouseMoved, {20, 10}, milliseconds(0)},
                                             {EventType::leftMouseDragged, {25, 8}, milliseconds(10)},
                                             {EventType::mouseMoved, {125, 8}, milliseconds(20)}});
    const std::vector<sim::Delivery> deliveries = deliveriesOf(recording, setup(true));
    ASSERT_EQ(deliveries.size(), 3U);
    EXPECT_EQ(deliveries[0].sent, (Point{200, 100}));
    EXPECT_EQ(deliveries[1].sent, (Point{250, 80}));
    EXPECT_EQ(deliveries[1].type, EventType::leftMouseDragged);
    EXPECT_EQ(deliveries[2].sent, (Point{1250, 80}));
}

TEST(Replay, HoldsTheDockThatLeavesWithoutTheGuard) {
    std::vector<Motion> push;
    for (int step = 0; step < 60; ++step) {
        push.push_back({EventType::mouseMoved, {150.0, 10.0 + step}, milliseconds(20 * step)});
    }
    const Recording recording = recordingOf(push);
    {
        SimulatedDesk guarded(setup(true));
        const Report report = play(recording, guarded, [](std::uint64_t, const sim::Delivery&) {});
        EXPECT_GT(report.changed, 10U);
        EXPECT_EQ(report.violations, 0U);
        EXPECT_EQ(report.dockMoves, 0U);
        EXPECT_EQ(report.dockDisplay, 0U);
    }
    SimulatedDesk unguarded(setup(false));
    const Report report = play(recording, unguarded, [](std::uint64_t, const sim::Delivery&) {});
    EXPECT_EQ(report.changed, 0U);
    EXPECT_EQ(report.violations, 0U);
    EXPECT_EQ(report.dockMoves, 1U);
    EXPECT_EQ(report.dockDisplay, 1U);
}

TEST(Replay, PassesOnWhatTheRecordingSkipped) {
    SimulatedDesk desk(setup(true));
    const Report report = play(recordingOf({{EventType::mouseMoved, {1, 1}, milliseconds(0)}}), desk,
                               [](std::uint64_t, const sim::Delivery&) {});
    EXPECT_EQ(report.skipped, (SkippedRows{1, 2, 3}));
}

TEST(Replay, GivesTheSameEventsEveryTime) {
    const Recording recording = madeUpRecording({.seed = 11, .rows = 5000});
    const std::vector<sim::Delivery> first = deliveriesOf(recording, setup(true));
    const std::vector<sim::Delivery> second = deliveriesOf(recording, setup(true));
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t index = 0; index < first.size(); ++index) {
        ASSERT_EQ(first[index].delivered, second[index].delivered) << index;
    }
}

TEST(SimulatedDesk, StartsWithTheDockOnThePinnedDisplayAndTheChoicesStored) {
    SimulatedDesk desk({SideBySide, 1, true, 12.5});
    EXPECT_EQ(desk.dockDisplay(), 1U);
    EXPECT_EQ(desk.host().guard()->pinnedScreen()->displayID, 2U);
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_EQ(desk.session().defaults().find(entries::BlockMargin)->asDouble(), 12.5);
    EXPECT_EQ(desk.judged().margin, 12.5);
}

TEST(SimulatedDesk, JudgesAMarginThatIsNotGreaterThanZeroAsTheUsualOne) {
    SimulatedDesk desk({SideBySide, 0, true, -3.0});
    EXPECT_EQ(desk.judged().margin, 4);
    EXPECT_EQ(desk.session().defaults().find(entries::BlockMargin)->asDouble(), -3);
}

TEST(SimulatedDesk, LeavesTheGuardStoppedWhenItIsSwitchedOff) {
    SimulatedDesk desk(setup(false));
    EXPECT_FALSE(desk.host().guardIsRunning());
    EXPECT_EQ(desk.session().taps().count(), 0U);
}

} // namespace
} // namespace kestrune::replay
