// The system switches taps off: because they are slow, or because the user or secure input asks for it.
#include "tests/contract/RecordingTap.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TapDisabledContract : public testing::TestWithParam<EventType> {
protected:
    World world_;
    ReceivedEvents received_;
};

TEST_P(TapDisabledContract, IsToldToTheTapOnce) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    world_.switchTapsOff(GetParam());
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"tap", GetParam(), {}}));
    world_.post(EventType::mouseMoved, {10, 10});
    EXPECT_EQ(received_.size(), 1U);
}

TEST_P(TapDisabledContract, IsToldWhateverTheMask) {
    TapOptions options;
    options.mask = 0;
    RecordingTap tap(received_, options);
    ASSERT_TRUE(tap.schedule());
    world_.switchTapsOff(GetParam());
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"tap", GetParam(), {}}));
}

TEST_P(TapDisabledContract, LetsEventsPassTheTap) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event*) { return nullptr; });
    world_.switchTapsOff(GetParam());
    EXPECT_EQ(world_.post(EventType::mouseMoved, {10, 10}), (Point{10, 10}));
}

TEST_P(TapDisabledContract, EndsWhenTheTapIsEnabledInItsCallback) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onDisabled([&tap](EventType) { tap.enable(true); });
    world_.switchTapsOff(GetParam());
    received_.clear();
    world_.post(EventType::mouseMoved, {10, 10});
    EXPECT_THAT(received_, ElementsAre(ReceivedEvent{"tap", EventType::mouseMoved, {10, 10}}));
}

TEST_P(TapDisabledContract, CanHappenAgainAfterwards) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onDisabled([&tap](EventType) { tap.enable(true); });
    world_.switchTapsOff(GetParam());
    world_.switchTapsOff(GetParam());
    EXPECT_THAT(received_,
                ElementsAre(ReceivedEvent{"tap", GetParam(), {}}, ReceivedEvent{"tap", GetParam(), {}}));
}

TEST_P(TapDisabledContract, IsNotToldToATapThatIsOnNoRunLoop) {
    const RecordingTap tap(received_, {});
    world_.switchTapsOff(GetParam());
    EXPECT_THAT(received_, IsEmpty());
}

TEST_P(TapDisabledContract, LetsTheTapLeaveTheRunLoopInItsCallback) {
    RecordingTap tap(received_, {});
    ASSERT_TRUE(tap.schedule());
    tap.onDisabled([&tap](EventType) {
        tap.unschedule();
        tap.releaseSource();
        tap.releaseTap();
    });
    world_.switchTapsOff(GetParam());
    world_.switchTapsOff(GetParam());
    EXPECT_EQ(received_.size(), 1U);
}

std::string nameOfReason(const testing::TestParamInfo<EventType>& reason) {
    return reason.param == EventType::tapDisabledByTimeout ? "Timeout" : "UserInput";
}

INSTANTIATE_TEST_SUITE_P(Reasons, TapDisabledContract,
                         testing::Values(EventType::tapDisabledByTimeout, EventType::tapDisabledByUserInput),
                         nameOfReason);

} // namespace
} // namespace kestrune::contract
