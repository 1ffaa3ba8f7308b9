// Tasks on the main actor.
#include "platform/MainActor.h"
#include "platform/Timer.h"
#include "tests/contract/MenuFixture.h"

#include <gmock/gmock.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainActorContract : public MenuFixture {
protected:
    void startTask(std::string name) {
        MainActor::startTask([this, task = std::move(name)] { done_.push_back(task); });
    }

    std::vector<std::string> done_;
};

TEST_F(MainActorContract, RunsATaskAfterWhatRunsNow) {
    startTask("task");
    EXPECT_THAT(done_, IsEmpty());
    world_.runMainQueue();
    EXPECT_THAT(done_, ElementsAre("task"));
    world_.runMainQueue();
    EXPECT_THAT(done_, ElementsAre("task"));
}

TEST_F(MainActorContract, RunsTasksInTheOrderOfTheirStart) {
    startTask("first");
    startTask("second");
    startTask("third");
    world_.runMainQueue();
    EXPECT_THAT(done_, ElementsAre("first", "second", "third"));
}

TEST_F(MainActorContract, RunsATaskThatATaskStartedAfterThoseBefore) {
    MainActor::startTask([this] {
        startTask("started by the first");
        done_.emplace_back("first");
    });
    startTask("second");
    world_.letTimePass(0.05);
    EXPECT_THAT(done_, ElementsAre("first", "second", "started by the first"));
}

TEST_F(MainActorContract, RunsATaskOnlyWhenTheCalloutThatStartedItHasReturned) {
    Timer::scheduledTimer(0.05, false, [this](Timer& /*timer*/) {
        startTask("task");
        done_.emplace_back("end of the callout");
    });
    world_.letTimePass(0.1);
    EXPECT_THAT(done_, ElementsAre("end of the callout", "task"));
}

TEST_F(MainActorContract, RunsATaskWhileAMenuIsTracked) {
    statusItem_.setMenu(Menu());
    world_.openStatusMenu([this] {
        startTask("task");
        EXPECT_THAT(done_, IsEmpty());
        world_.runMainQueue();
        EXPECT_THAT(done_, ElementsAre("task"));
    });
}

TEST_F(MainActorContract, ReleasesATaskThatHasRun) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> watched = token;
    MainActor::startTask([token = std::move(token)] {});
    EXPECT_FALSE(watched.expired());
    world_.runMainQueue();
    EXPECT_TRUE(watched.expired());
}

TEST(MainActorWithoutApplicationContract, RunsATaskThatWasStartedBeforeTheApplicationWasMade) {
    World world;
    bool isDone = false;
    MainActor::startTask([&] { isDone = true; });
    Application::sharedApplication();
    world.runMainQueue();
    EXPECT_TRUE(isDone);
}

TEST_F(MainActorContract, IsCurrentOnTheMainThreadAlone) {
    EXPECT_TRUE(MainActor::isCurrent());
    bool isCurrentElsewhere = true;
    world_.onAnotherThread([&] { isCurrentElsewhere = MainActor::isCurrent(); });
    EXPECT_FALSE(isCurrentElsewhere);
    EXPECT_TRUE(MainActor::isCurrent());
}

TEST_F(MainActorContract, IsCurrentInATask) {
    bool isCurrent = false;
    MainActor::startTask([&] { isCurrent = MainActor::isCurrent(); });
    world_.runMainQueue();
    EXPECT_TRUE(isCurrent);
}

} // namespace
} // namespace kestrune::contract
