#include "platform/Application.h"
#include "platform/RunLoop.h"
#include "platform/StatusBar.h"
#include "tests/contract/RecordingTap.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

class RunLoopContract : public testing::Test {
protected:
    // How often the tap receives one event.
    std::size_t receptions() {
        received_.clear();
        world_.post(EventType::mouseMoved, {10, 10});
        return received_.size();
    }

    World world_;
    ReceivedEvents received_;
    RecordingTap tap_{received_, {}};
    RunLoop runLoop_ = RunLoop::current();
};

TEST_F(RunLoopContract, ServesASourceInTheDefaultMode) {
    runLoop_.addSource(tap_.source(), RunLoopMode::defaultMode);
    EXPECT_EQ(receptions(), 1U);
    runLoop_.removeSource(tap_.source(), RunLoopMode::defaultMode);
    EXPECT_EQ(receptions(), 0U);
}

TEST_F(RunLoopContract, ServesASourceThatWasAddedTwiceOnce) {
    runLoop_.addSource(tap_.source(), RunLoopMode::commonModes);
    runLoop_.addSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 1U);
}

TEST_F(RunLoopContract, DropsASourceThatWasAddedTwiceAtTheFirstRemoval) {
    runLoop_.addSource(tap_.source(), RunLoopMode::commonModes);
    runLoop_.addSource(tap_.source(), RunLoopMode::commonModes);
    runLoop_.removeSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 0U);
}

TEST_F(RunLoopContract, RemovesASourceTwiceWithoutHarm) {
    runLoop_.addSource(tap_.source(), RunLoopMode::commonModes);
    runLoop_.removeSource(tap_.source(), RunLoopMode::commonModes);
    runLoop_.removeSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 0U);
    runLoop_.addSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 1U);
}

TEST_F(RunLoopContract, RemovesASourceThatWasNeverAddedWithoutHarm) {
    runLoop_.removeSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 0U);
}

// The other way around is no such case: the default mode is one of the common modes.
TEST_F(RunLoopContract, KeepsASourceThatIsInTheDefaultModeAloneWhenTheCommonModesDropIt) {
    runLoop_.addSource(tap_.source(), RunLoopMode::defaultMode);
    runLoop_.removeSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 1U);
}

TEST_F(RunLoopContract, IsTheSameLoopEachTime) {
    RunLoop::current().addSource(tap_.source(), RunLoopMode::commonModes);
    RunLoop::current().removeSource(tap_.source(), RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 0U);
}

TEST_F(RunLoopContract, RetainsItsSources) {
    ASSERT_TRUE(tap_.schedule());
    const RunLoopSource kept = tap_.source();
    tap_.releaseTap();
    tap_.releaseSource();
    EXPECT_EQ(receptions(), 1U);
    runLoop_.removeSource(kept, RunLoopMode::commonModes);
    EXPECT_EQ(receptions(), 0U);
}

TEST_F(RunLoopContract, ServesATapThroughASourceThatRetainsIt) {
    tap_.releaseTap();
    ASSERT_TRUE(tap_.schedule());
    EXPECT_EQ(receptions(), 1U);
}

TEST_F(RunLoopContract, ServesTheCommonModesWhileAMenuIsTracked) {
    Application::sharedApplication();
    StatusItem item = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    item.setMenu(Menu());
    ASSERT_TRUE(tap_.schedule());
    world_.openStatusMenu([this] { EXPECT_EQ(receptions(), 1U); });
}

TEST_F(RunLoopContract, EndsATapWithItsLastReference) {
    tap_.releaseTap();
    tap_.releaseSource();
    EXPECT_EQ(receptions(), 0U);
}

} // namespace
} // namespace kestrune::contract
