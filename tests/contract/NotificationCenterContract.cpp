// Observers of changed displays.
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "platform/Screen.h"
#include "tests/contract/MenuFixture.h"

#include <gmock/gmock.h>

#include <utility>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr NotificationName OtherNotification{"KestruneContractNotification"};

class NotificationCenterContract : public MenuFixture {
protected:
    static NotificationObserver
    observe(std::function<void()> block,
            const NotificationName& name = ApplicationDidChangeScreenParametersNotification) {
        return NotificationCenter::defaultCenter().addObserver(
            name, OperationQueue::mainQueue(), [block = std::move(block)](const Notification&) { block(); });
    }

    NotificationObserver observeAs(std::string name) {
        return observe([this, observer = std::move(name)] { notified_.push_back(observer); });
    }

    void changeDisplays() { world_.announceDisplays(); }

    void connectDisplays(std::size_t count) {
        std::vector<ConnectedDisplay> displays;
        for (DisplayID displayID = 1; displayID <= count; ++displayID) {
            displays.push_back(connectedDisplay(displayID, {(displayID - 1) * 1000.0, 0, 1000, 800}));
        }
        world_.connect(displays);
    }

    std::vector<std::string> notified_;
};

TEST_F(NotificationCenterContract, TellsAnObserverOfEachChange) {
    const NotificationObserver observer = observeAs("only");
    EXPECT_THAT(notified_, IsEmpty());
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("only"));
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("only", "only"));
}

TEST_F(NotificationCenterContract, TellsEveryObserver) {
    const NotificationObserver first = observeAs("first");
    const NotificationObserver second = observeAs("second");
    const NotificationObserver third = observeAs("third");
    changeDisplays();
    EXPECT_THAT(notified_, UnorderedElementsAre("first", "second", "third"));
}

TEST_F(NotificationCenterContract, TellsAnObserverWhoseTokenWasDropped) {
    observeAs("only");
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("only"));
}

TEST_F(NotificationCenterContract, TellsNothingOfAnotherName) {
    const NotificationObserver observer =
        observe([] { ADD_FAILURE() << "Nobody posts that."; }, OtherNotification);
    const NotificationObserver other = observeAs("other");
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("other"));
}

TEST_F(NotificationCenterContract, TellsOnTheMainThread) {
    std::vector<bool> isCurrent;
    const NotificationObserver observer = observe([&] { isCurrent.push_back(MainActor::isCurrent()); });
    changeDisplays();
    EXPECT_THAT(isCurrent, ElementsAre(true));
}

// Tasks wait until the callout has returned, but a block on the main queue does not, when the poster is
// there.
TEST_F(NotificationCenterContract, TellsInlineWhenPostedOnTheMainThread) {
    const NotificationObserver observer = observe([this] {
        MainActor::startTask([this] { notified_.emplace_back("task"); });
        notified_.emplace_back("observer");
    });
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("observer"));
    world_.runMainQueue();
    EXPECT_THAT(notified_, ElementsAre("observer", "task"));
}

TEST_F(NotificationCenterContract, TellsWhenTheDisplaysHaveChanged) {
    std::vector<std::size_t> counts;
    const NotificationObserver observer = observe([&] { counts.push_back(Screen::screens().size()); });
    connectDisplays(2);
    connectDisplays(0);
    connectDisplays(1);
    EXPECT_THAT(counts, ElementsAre(2U, 0U, 1U));
}

TEST_F(NotificationCenterContract, TellsWhileAMenuIsTracked) {
    statusItem_.setMenu(Menu());
    const NotificationObserver observer = observeAs("only");
    world_.openStatusMenu([this] {
        changeDisplays();
        EXPECT_THAT(notified_, ElementsAre("only"));
    });
    EXPECT_THAT(notified_, ElementsAre("only"));
}

TEST_F(NotificationCenterContract, KeepsWhatABlockChangedOfItsOwn) {
    int latest = 0;
    const NotificationObserver observer = observe([&latest, count = 0]() mutable { latest = ++count; });
    changeDisplays();
    changeDisplays();
    EXPECT_EQ(latest, 2);
}

TEST_F(NotificationCenterContract, LetsABlockAddAnObserver) {
    const NotificationObserver observer = observe([this] { observeAs("added"); });
    changeDisplays();
    notified_.clear();
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("added"));
}

// It is about the application.
TEST_F(NotificationCenterContract, TellsOfAnObjectThatIsNoWindow) {
    std::vector<bool> isWindow;
    const NotificationObserver observer = NotificationCenter::defaultCenter().addObserver(
        ApplicationDidChangeScreenParametersNotification, OperationQueue::mainQueue(),
        [&](const Notification& notification) {
            isWindow.push_back(notification.objectAsWindow().has_value());
        });
    changeDisplays();
    EXPECT_THAT(isWindow, ElementsAre(false));
}

TEST_F(NotificationCenterContract, TellsNothingToAnObserverThatWasRemoved) {
    const NotificationObserver removed = observeAs("removed");
    const NotificationObserver staying = observeAs("staying");
    NotificationCenter::defaultCenter().removeObserver(removed);
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("staying"));
    NotificationCenter::defaultCenter().removeObserver(removed);
    changeDisplays();
    EXPECT_THAT(notified_, ElementsAre("staying", "staying"));
}

TEST_F(NotificationCenterContract, LetsGoOfTheBlockOfAnObserverThatWasRemoved) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> watched = token;
    {
        const NotificationObserver observer = observe([token = std::move(token)] {});
        changeDisplays();
        EXPECT_FALSE(watched.expired());
        NotificationCenter::defaultCenter().removeObserver(observer);
    }
    world_.runMainQueue();
    EXPECT_TRUE(watched.expired());
}

TEST_F(NotificationCenterContract, LetsABlockRemoveItsOwnObserver) {
    std::optional<NotificationObserver> observer;
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> watched = token;
    bool isThere = false;
    observer = observe([&, token = std::move(token)] {
        NotificationCenter::defaultCenter().removeObserver(*observer);
        observer.reset();
        isThere = !watched.expired();
        notified_.emplace_back("removed itself");
    });
    changeDisplays();
    changeDisplays();
    EXPECT_TRUE(isThere);
    EXPECT_THAT(notified_, ElementsAre("removed itself"));
}

} // namespace
} // namespace kestrune::contract
