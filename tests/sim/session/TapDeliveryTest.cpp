// What several taps do to one event, and to each other while it is on its way.
#include "sim/hardware/PointerEvent.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using contract::ReceivedEvents;
using contract::RecordingTap;
using testing::ElementsAre;
using testing::IsEmpty;

class TapDeliveryTest : public testing::Test {
protected:
    std::unique_ptr<RecordingTap> tap(const std::string& name,
                                      EventTapOptions options = EventTapOptions::defaultTap) {
        auto result = std::make_unique<RecordingTap>(
            received_, contract::TapOptions{name, EventTapLocation::session, EventTapPlacement::tailAppend,
                                            options, contract::MouseMovedMask});
        EXPECT_TRUE(result->schedule());
        return result;
    }

    std::vector<std::string> post() {
        received_.clear();
        last_ = session_.post(EventType::mouseMoved, {10, 10});
        std::vector<std::string> names;
        for (const contract::ReceivedEvent& event : received_) {
            names.push_back(event.tap);
        }
        return names;
    }

    Session session_;
    ReceivedEvents received_;
    std::optional<Delivery> last_;
};

TEST_F(TapDeliveryTest, TellsWhetherATapDeletedTheEvent) {
    const auto first = tap("first");
    post();
    EXPECT_FALSE(last_->swallowed);
    first->onPointerEvent([](Event*) { return nullptr; });
    post();
    EXPECT_TRUE(last_->swallowed);
}

TEST_F(TapDeliveryTest, GoesOnWithTheEventThatATapPutInItsPlace) {
    PointerEvent replacement(EventType::mouseMoved, {700, 701});
    const auto first = tap("first");
    const auto second = tap("second");
    first->onPointerEvent([&replacement](Event*) { return &replacement; });
    EXPECT_THAT(post(), ElementsAre("first", "second"));
    EXPECT_EQ(received_[1].location, (Point{700, 701}));
    EXPECT_TRUE(last_->replaced);
    EXPECT_EQ(last_->delivered, (Point{700, 701}));
    EXPECT_EQ(last_->sent, (Point{10, 10}));
}

TEST_F(TapDeliveryTest, IgnoresWhatATapThatOnlyListensPutInItsPlace) {
    PointerEvent replacement(EventType::mouseMoved, {700, 701});
    const auto listener = tap("listener", EventTapOptions::listenOnly);
    listener->onPointerEvent([&replacement](Event*) { return &replacement; });
    post();
    EXPECT_FALSE(last_->replaced);
    EXPECT_EQ(last_->delivered, (Point{10, 10}));
}

TEST_F(TapDeliveryTest, SkipsATapThatIsRemovedOnTheWay) {
    auto first = tap("first");
    auto second = tap("second");
    const auto third = tap("third");
    first->onPointerEvent([&second](Event* event) {
        second.reset();
        return event;
    });
    EXPECT_THAT(post(), ElementsAre("first", "third"));
    EXPECT_EQ(session_.taps().count(), 2U);
}

TEST_F(TapDeliveryTest, SkipsATapThatIsDisabledOnTheWay) {
    const auto first = tap("first");
    const auto second = tap("second");
    first->onPointerEvent([&second](Event* event) {
        second->enable(false);
        return event;
    });
    EXPECT_THAT(post(), ElementsAre("first"));
    EXPECT_EQ(session_.taps().count(), 2U);
    EXPECT_EQ(session_.taps().enabledCount(), 1U);
}

TEST_F(TapDeliveryTest, ShowsTheEventToTheRestWhenATapRemovesItself) {
    const auto first = tap("first");
    const auto second = tap("second");
    first->onPointerEvent([&first](Event* event) {
        first->unschedule();
        first->releaseSource();
        first->releaseTap();
        return event;
    });
    EXPECT_THAT(post(), ElementsAre("first", "second"));
    EXPECT_THAT(post(), ElementsAre("second"));
    EXPECT_EQ(session_.taps().count(), 1U);
}

// The places of the taps before and behind change while the event is on its way between them.
TEST_F(TapDeliveryTest, ShowsTheEventOnceToEachWhenATapIsReplacedOnTheWay) {
    auto first = tap("first");
    const auto second = tap("second");
    const auto third = tap("third");
    std::unique_ptr<RecordingTap> added;
    second->onPointerEvent([&](Event* event) {
        if (!added) {
            first.reset();
            added = std::make_unique<RecordingTap>(
                received_,
                contract::TapOptions{"added", EventTapLocation::session, EventTapPlacement::headInsert,
                                     EventTapOptions::defaultTap, contract::MouseMovedMask});
            EXPECT_TRUE(added->schedule());
        }
        return event;
    });
    EXPECT_THAT(post(), ElementsAre("first", "second", "third"));
    EXPECT_THAT(post(), ElementsAre("added", "second", "third"));
}

TEST_F(TapDeliveryTest, TellsTheRestWhenATapRemovesItselfInItsNotice) {
    const auto first = tap("first");
    const auto second = tap("second");
    first->onDisabled([&first](EventType) {
        first->unschedule();
        first->releaseSource();
        first->releaseTap();
    });
    session_.faults().disableTaps(EventType::tapDisabledByUserInput);
    EXPECT_THAT(received_,
                ElementsAre(contract::ReceivedEvent{"first", EventType::tapDisabledByUserInput, {}},
                            contract::ReceivedEvent{"second", EventType::tapDisabledByUserInput, {}}));
}

TEST_F(TapDeliveryTest, DeliversAnEventThatIsPostedInACallbackOnItsOwn) {
    const auto first = tap("first");
    const auto second = tap("second");
    second->onPointerEvent([this, nested = false](Event* event) mutable {
        if (!nested) {
            nested = true;
            session_.post(EventType::mouseMoved, {20, 20});
        }
        return event;
    });
    EXPECT_THAT(post(), ElementsAre("first", "second", "first", "second"));
    EXPECT_EQ(received_[2].location, (Point{20, 20}));
    EXPECT_EQ(last_->delivered, (Point{10, 10}));
}

TEST_F(TapDeliveryTest, ServesATapWithTwoSourcesUntilTheLastIsRemoved) {
    int calls = 0;
    const auto eventTap = EventTap::create(
        EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap,
        contract::MouseMovedMask,
        [](EventTapProxy*, EventType, Event* event, void* userInfo) noexcept {
            ++*static_cast<int*>(userInfo);
            return event;
        },
        &calls);
    ASSERT_TRUE(eventTap);
    const RunLoopSource one = eventTap->createRunLoopSource(0);
    const RunLoopSource other = eventTap->createRunLoopSource(0);
    RunLoop::current().addSource(one, RunLoopMode::commonModes);
    RunLoop::current().addSource(other, RunLoopMode::commonModes);
    post();
    EXPECT_EQ(calls, 1);
    RunLoop::current().removeSource(one, RunLoopMode::commonModes);
    post();
    EXPECT_EQ(calls, 2);
    RunLoop::current().removeSource(other, RunLoopMode::commonModes);
    post();
    EXPECT_EQ(calls, 2);
}

TEST_F(TapDeliveryTest, ForgetsATapThatIsGone) {
    tap("gone").reset();
    EXPECT_EQ(session_.taps().count(), 0U);
    EXPECT_EQ(session_.taps().enabledCount(), 0U);
    EXPECT_THAT(post(), IsEmpty());
}

} // namespace
} // namespace kestrune::sim
