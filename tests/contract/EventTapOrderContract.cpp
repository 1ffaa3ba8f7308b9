// Several taps: who sees an event first, and what those behind see of it.
#include "tests/contract/RecordingTap.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;

class EventTapOrderContract : public testing::Test {
protected:
    RecordingTap& add(const std::string& name, EventTapPlacement placement,
                      EventTapLocation location = EventTapLocation::session,
                      EventTapOptions options = EventTapOptions::defaultTap) {
        taps_.push_back(std::make_unique<RecordingTap>(
            received_, TapOptions{name, location, placement, options, MouseMovedMask}));
        EXPECT_TRUE(taps_.back()->schedule());
        return *taps_.back();
    }

    std::vector<std::string> order() {
        received_.clear();
        world_.post(EventType::mouseMoved, {10, 10});
        std::vector<std::string> names;
        for (const ReceivedEvent& event : received_) {
            names.push_back(event.tap);
        }
        return names;
    }

    World world_;
    ReceivedEvents received_;
    std::vector<std::unique_ptr<RecordingTap>> taps_;
};

constexpr EventTapPlacement Head = EventTapPlacement::headInsert;
constexpr EventTapPlacement Tail = EventTapPlacement::tailAppend;

TEST_F(EventTapOrderContract, StartsWithTheMostRecentHeadInsert) {
    add("first", Head);
    add("second", Head);
    add("third", Head);
    EXPECT_THAT(order(), ElementsAre("third", "second", "first"));
}

TEST_F(EventTapOrderContract, EndsWithTheMostRecentTailAppend) {
    add("first", Tail);
    add("second", Tail);
    add("third", Tail);
    EXPECT_THAT(order(), ElementsAre("first", "second", "third"));
}

TEST_F(EventTapOrderContract, HasHeadInsertsBeforeTailAppends) {
    add("tail one", Tail);
    add("head one", Head);
    add("tail two", Tail);
    add("head two", Head);
    EXPECT_THAT(order(), ElementsAre("head two", "head one", "tail one", "tail two"));
}

TEST_F(EventTapOrderContract, GoesFromTheHardwareOverTheSessionToTheApplication) {
    add("session", Head, EventTapLocation::session);
    add("application", Head, EventTapLocation::annotatedSession);
    add("hardware", Tail, EventTapLocation::hid);
    EXPECT_THAT(order(), ElementsAre("hardware", "session", "application"));
}

TEST_F(EventTapOrderContract, AppliesPlacementWithinOneLocation) {
    add("session", Head, EventTapLocation::session);
    add("hardware head", Head, EventTapLocation::hid);
    add("application", Tail, EventTapLocation::annotatedSession);
    add("hardware tail", Tail, EventTapLocation::hid);
    add("application head", Head, EventTapLocation::annotatedSession);
    add("session tail", Tail, EventTapLocation::session);
    EXPECT_THAT(order(), ElementsAre("hardware head", "hardware tail", "session", "session tail",
                                     "application head", "application"));
}

TEST_F(EventTapOrderContract, ClosesUpWhenATapLeaves) {
    add("first", Head);
    RecordingTap& second = add("second", Head);
    add("third", Head);
    second.unschedule();
    EXPECT_THAT(order(), ElementsAre("third", "first"));
}

TEST_F(EventTapOrderContract, ShowsAnEventAsTheTapBeforeLeftIt) {
    add("behind", Head);
    RecordingTap& mover = add("mover", Head);
    mover.onPointerEvent([](Event* event) {
        event->setLocation({70, 71});
        return event;
    });
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{70, 71}));
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"mover", EventType::mouseMoved, {10, 10}},
                                       ReceivedEvent{"behind", EventType::mouseMoved, {70, 71}}));
}

TEST_F(EventTapOrderContract, ShowsAnEventUnchangedBehindATapThatOnlyListens) {
    add("behind", Head);
    RecordingTap& listener = add("listener", Head, EventTapLocation::session, EventTapOptions::listenOnly);
    listener.onPointerEvent([](Event* event) {
        event->setLocation({70, 71});
        return event;
    });
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"listener", EventType::mouseMoved, {10, 10}},
                                       ReceivedEvent{"behind", EventType::mouseMoved, {10, 10}}));
}

TEST_F(EventTapOrderContract, ShowsATapThatOnlyListensTheMovedEvent) {
    add("listener", Head, EventTapLocation::session, EventTapOptions::listenOnly);
    RecordingTap& mover = add("mover", Head);
    mover.onPointerEvent([](Event* event) {
        event->setLocation({70, 71});
        return event;
    });
    world_.post(EventType::mouseMoved, {10, 10});
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"mover", EventType::mouseMoved, {10, 10}},
                                       ReceivedEvent{"listener", EventType::mouseMoved, {70, 71}}));
}

TEST_F(EventTapOrderContract, EndsWhereATapDeletesTheEvent) {
    add("behind", Head);
    add("deleter", Head).onPointerEvent([](Event*) { return nullptr; });
    EXPECT_THAT(order(), ElementsAre("deleter"));
}

TEST_F(EventTapOrderContract, LeavesOutADisabledTap) {
    add("behind", Head);
    add("disabled", Head).enable(false);
    EXPECT_THAT(order(), ElementsAre("behind"));
}

TEST_F(EventTapOrderContract, ShowsAnEventToEachTapOnceEvenWhenOneIsAddedMeanwhile) {
    add("behind", Head);
    RecordingTap& adder = add("adder", Head);
    adder.onPointerEvent([this, isFirst = true](Event* event) mutable {
        if (isFirst) {
            isFirst = false;
            add("added", Head);
        }
        return event;
    });
    EXPECT_THAT(order(), ElementsAre("adder", "behind"));
    EXPECT_THAT(order(), ElementsAre("added", "adder", "behind"));
}

} // namespace
} // namespace kestrune::contract
