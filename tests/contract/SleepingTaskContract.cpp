// Tasks on the main actor that sleep before their work.
#include "platform/MainActor.h"
#include "tests/contract/MenuFixture.h"

namespace kestrune::contract {
namespace {

using namespace std::chrono_literals;

class SleepingTaskContract : public MenuFixture {
protected:
    void startTask() {
        MainActor::startTask(300ms, [this] { ++timesDone_; });
    }

    int timesDone_ = 0;
};

TEST_F(SleepingTaskContract, WorksWhenItHasSleptAndNotBefore) {
    startTask();
    EXPECT_EQ(timesDone_, 0);
    world_.letTimePass(0.25);
    EXPECT_EQ(timesDone_, 0);
    world_.letTimePass(0.1);
    EXPECT_EQ(timesDone_, 1);
    world_.letTimePass(1);
    EXPECT_EQ(timesDone_, 1);
}

TEST_F(SleepingTaskContract, WorksOnTheMainThread) {
    bool isCurrent = false;
    MainActor::startTask(300ms, [&] { isCurrent = MainActor::isCurrent(); });
    world_.letTimePass(0.4);
    EXPECT_TRUE(isCurrent);
}

TEST_F(SleepingTaskContract, SleepsOnWhileAMenuIsTracked) {
    statusItem_.setMenu(Menu());
    startTask();
    world_.openStatusMenu([this] {
        world_.letTimePass(0.4);
        EXPECT_EQ(timesDone_, 1);
    });
}

TEST_F(SleepingTaskContract, LetsGoOfItsWorkWhenThatIsDone) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> watched = token;
    MainActor::startTask(300ms, [token = std::move(token)] {});
    world_.letTimePass(0.1);
    EXPECT_FALSE(watched.expired());
    world_.letTimePass(0.3);
    EXPECT_TRUE(watched.expired());
}

TEST_F(SleepingTaskContract, OfADifferentLengthHasItsOwnTime) {
    std::string order;
    MainActor::startTask(300ms, [&] { order += "long "; });
    MainActor::startTask(100ms, [&] { order += "short "; });
    world_.letTimePass(0.4);
    EXPECT_EQ(order, "short long ");
}

} // namespace
} // namespace kestrune::contract
