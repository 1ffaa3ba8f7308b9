// Creating taps, and what one tap sees and may do.
#include "platform/EventTap.h"
#include "tests/contract/RecordingTap.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EventTapContract : public testing::Test {
protected:
    bool canCreate(Trust trust, EventTapOptions options) {
        world_.setTrust(trust);
        TapOptions tapOptions;
        tapOptions.options = options;
        return RecordingTap(received_, tapOptions).exists();
    }

    World world_;
    ReceivedEvents received_;
};

TEST_F(EventTapContract, IsCreatedWithThePermission) {
    EXPECT_TRUE(canCreate(Trust::granted, EventTapOptions::defaultTap));
}

TEST_F(EventTapContract, IsRefusedWithoutThePermission) {
    EXPECT_FALSE(canCreate(Trust::notListed, EventTapOptions::defaultTap));
    EXPECT_FALSE(canCreate(Trust::switchedOff, EventTapOptions::defaultTap));
    EXPECT_FALSE(canCreate(Trust::outdated, EventTapOptions::defaultTap));
}

TEST_F(EventTapContract, IsRefusedAfterThePermissionsRowWasDeleted) {
    EXPECT_FALSE(canCreate(Trust::rowDeleted, EventTapOptions::defaultTap));
}

TEST_F(EventTapContract, ListsTheApplicationWhenItIsRefused) {
    EXPECT_FALSE(canCreate(Trust::notListed, EventTapOptions::defaultTap));
    EXPECT_EQ(world_.trust(), Trust::switchedOff);
    EXPECT_FALSE(world_.isTrustDialogShown());
}

TEST_F(EventTapContract, LeavesTheRowAsItIsWhenItIsRefused) {
    for (const Trust trust : {Trust::switchedOff, Trust::outdated}) {
        EXPECT_FALSE(canCreate(trust, EventTapOptions::defaultTap));
        EXPECT_EQ(world_.trust(), trust);
    }
}

TEST_F(EventTapContract, ListsNothingWhenItOnlyListens) {
    EXPECT_TRUE(canCreate(Trust::notListed, EventTapOptions::listenOnly));
    EXPECT_EQ(world_.trust(), Trust::notListed);
}

TEST_F(EventTapContract, CanBeCreatedAgainOnceThePermissionIsBack) {
    EXPECT_FALSE(canCreate(Trust::switchedOff, EventTapOptions::defaultTap));
    EXPECT_TRUE(canCreate(Trust::granted, EventTapOptions::defaultTap));
}

TEST_F(EventTapContract, ReceivesEventsWhereTheyHappen) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    EXPECT_EQ(world_.post(EventType::mouseMoved, {100.5, 200.25}), (Point{100.5, 200.25}));
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"tap", EventType::mouseMoved, {100.5, 200.25}}));
}

TEST_F(EventTapContract, ReceivesOnlyTheTypesInItsMask) {
    TapOptions options;
    options.mask = eventMaskBit(EventType::leftMouseDragged) | eventMaskBit(EventType::otherMouseDragged);
    RecordingTap tap(received_, options);
    ASSERT_TRUE(tap.schedule());
    for (const EventType type : {EventType::mouseMoved, EventType::leftMouseDragged,
                                 EventType::rightMouseDragged, EventType::otherMouseDragged}) {
        EXPECT_EQ(world_.post(type, {10, 10}), (Point{10, 10}));
    }
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"tap", EventType::leftMouseDragged, {10, 10}},
                                       ReceivedEvent{"tap", EventType::otherMouseDragged, {10, 10}}));
}

TEST_F(EventTapContract, ReceivesNothingWithAnEmptyMask) {
    TapOptions options;
    options.mask = 0;
    RecordingTap tap(received_, options);
    ASSERT_TRUE(tap.schedule());
    world_.post(EventType::mouseMoved, {10, 10});
    EXPECT_THAT(received_, IsEmpty());
}

TEST_F(EventTapContract, ReceivesNothingBeforeItsSourceIsOnARunLoop) {
    const RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.exists());
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
    EXPECT_THAT(received_, IsEmpty());
}

TEST_F(EventTapContract, MovesAnEvent) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event* event) {
        event->setLocation({300, 301.5});
        return event;
    });
    EXPECT_EQ(world_.deliver(EventType::mouseMoved, {10, 10}),
              (DeliveredEvent{EventType::mouseMoved, {300, 301.5}}));
}

TEST_F(EventTapContract, SeesTheLocationThatItSet) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    Point seen;
    tap.onPointerEvent([&seen](Event* event) {
        event->setLocation({1.25, -2.5});
        seen = event->location();
        return event;
    });
    world_.post(EventType::mouseMoved, {10, 10});
    EXPECT_EQ(seen, (Point{1.25, -2.5}));
}

TEST_F(EventTapContract, DeletesAnEventByReturningNothing) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event*) { return nullptr; });
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), std::nullopt);
}

TEST_F(EventTapContract, ThatOnlyListensCannotMoveAnEvent) {
    TapOptions options;
    options.options = EventTapOptions::listenOnly;
    RecordingTap tap(received_, options);
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event* event) {
        event->setLocation({300, 300});
        return event;
    });
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
    EXPECT_EQ(received_.size(), 1U);
}

TEST_F(EventTapContract, ThatOnlyListensCannotDeleteAnEvent) {
    TapOptions options;
    options.options = EventTapOptions::listenOnly;
    RecordingTap tap(received_, options);
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event*) { return nullptr; });
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
    EXPECT_EQ(received_.size(), 1U);
}

TEST_F(EventTapContract, ReceivesNothingWhileDisabled) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.enable(false);
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
    EXPECT_THAT(received_, IsEmpty());
    tap.enable(true);
    world_.post(EventType::mouseMoved, {20, 20});
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"tap", EventType::mouseMoved, {20, 20}}));
}

TEST_F(EventTapContract, CanBeDisabledAndEnabledTwiceWithoutHarm) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.enable(false);
    tap.enable(false);
    tap.enable(true);
    tap.enable(true);
    world_.post(EventType::mouseMoved, {20, 20});
    EXPECT_EQ(received_.size(), 1U);
}

TEST_F(EventTapContract, CanLeaveTheRunLoopInItsOwnCallback) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([&tap](Event* event) {
        tap.enable(false);
        tap.unschedule();
        tap.releaseSource();
        tap.releaseTap();
        return event;
    });
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
    EXPECT_EQ(world_.post(EventType::mouseMoved, {11, 11}), (Point{11, 11}));
    EXPECT_EQ(received_.size(), 1U);
}

} // namespace
} // namespace kestrune::contract
