#include "sim/services/Observers.h"

#include "sim/services/NotificationState.h"
#include "sim/services/WindowState.h"
#include "sim/session/Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace kestrune::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ObserversTest : public testing::Test {
protected:
    void add(std::string_view name, std::string observer) {
        observers_.add(name,
                       [this, told = std::move(observer)](const Notification&) { told_.push_back(told); });
    }

    Observers observers_;
    std::vector<std::string> told_;
};

TEST_F(ObserversTest, AreToldOfTheirNameInTheOrderOfTheirRegistration) {
    add("name", "first");
    add("other", "other");
    add("name", "second");
    observers_.post(NotificationName("name"));
    EXPECT_THAT(told_, ElementsAre("first", "second"));
    observers_.post(NotificationName("other"));
    EXPECT_THAT(told_, ElementsAre("first", "second", "other"));
    observers_.post(NotificationName("nobody's"));
    observers_.post(NotificationName(""));
    EXPECT_EQ(told_.size(), 3U);
}

TEST_F(ObserversTest, AreCountedUntilTheyAreCleared) {
    EXPECT_EQ(observers_.count(), 0U);
    add("name", "first");
    add("name", "second");
    EXPECT_EQ(observers_.count(), 2U);
    observers_.clear();
    EXPECT_EQ(observers_.count(), 0U);
    observers_.post(NotificationName("name"));
    EXPECT_THAT(told_, IsEmpty());
}

TEST_F(ObserversTest, MayBeAddedByOneThatIsTold) {
    observers_.add("name", [this](const Notification&) { add("name", "added"); });
    observers_.post(NotificationName("name"));
    EXPECT_THAT(told_, IsEmpty());
    observers_.post(NotificationName("name"));
    EXPECT_THAT(told_, ElementsAre("added"));
    EXPECT_EQ(observers_.count(), 3U);
}

// The process that one of them ends has no other that could hear of it.
TEST_F(ObserversTest, AreNotToldAnyMoreWhenOneOfThemClearsThem) {
    observers_.add("name", [this](const Notification&) { observers_.clear(); });
    add("name", "second");
    observers_.post(NotificationName("name"));
    EXPECT_THAT(told_, IsEmpty());
}

TEST_F(ObserversTest, AreNotToldAnyMoreOnceTheyAreRemoved) {
    std::shared_ptr<NotificationObserver::State> second;
    observers_.add("name", [&](const Notification&) { observers_.remove(*second); });
    second = observers_.add("name", [this](const Notification&) { told_.emplace_back("second"); });
    add("name", "third");
    EXPECT_EQ(observers_.count(NotificationName("name")), 3U);
    observers_.post(NotificationName("name"));
    EXPECT_THAT(told_, ElementsAre("third"));
    EXPECT_EQ(observers_.count(NotificationName("name")), 2U);
    observers_.remove(*second);
    EXPECT_EQ(observers_.count(), 2U);
}

TEST_F(ObserversTest, SeeTheWindowThatItIsAbout) {
    const Session session;
    std::vector<bool> windows;
    observers_.add("name", [&](const Notification& notification) {
        windows.push_back(notification.objectAsWindow().has_value());
    });
    observers_.post(NotificationName("name"));
    observers_.post(NotificationName("name"), std::make_shared<Window::State>());
    EXPECT_THAT(windows, ElementsAre(false, true));
}

} // namespace
} // namespace kestrune::sim
