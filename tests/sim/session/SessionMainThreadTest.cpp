// What a session does on the application's main thread, and the faults of its calls.
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "platform/Workspace.h"
#include "sim/session/Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class SessionMainThreadTest : public testing::Test {
protected:
    void observeDisplays(std::string mark) {
        NotificationCenter::defaultCenter().addObserver(
            ApplicationDidChangeScreenParametersNotification, OperationQueue::mainQueue(),
            [this, observer = std::move(mark)](const Notification&) { calls_.push_back(observer); });
    }

    Session session_;
    std::vector<std::string> calls_;
};

TEST_F(SessionMainThreadTest, HearsOfChangedDisplaysAtOnce) {
    observeDisplays("observer");
    session_.changeDisplays({});
    EXPECT_THAT(calls_, ElementsAre("observer"));
}

TEST_F(SessionMainThreadTest, HearsOfChangedDisplaysOnceItsMainThreadIsFree) {
    observeDisplays("observer");
    session_.faults().stallMainThread(2s);
    session_.changeDisplays({});
    session_.changeDisplays({makeDisplay(1, "Other", {0, 0, 800, 600})});
    session_.advance(1999ms);
    EXPECT_THAT(calls_, IsEmpty());
    session_.advance(1ms);
    EXPECT_THAT(calls_, ElementsAre("observer", "observer"));
}

TEST_F(SessionMainThreadTest, WorksOffItsMainQueueInOrderWhenTimePasses) {
    session_.mainThread().enqueue([this] {
        calls_.emplace_back("first");
        session_.mainThread().enqueue([this] { calls_.emplace_back("third"); });
    });
    session_.mainThread().enqueue([this] { calls_.emplace_back("second"); });
    EXPECT_THAT(calls_, IsEmpty());
    session_.advance(0s);
    EXPECT_THAT(calls_, ElementsAre("first", "second", "third"));
}

TEST_F(SessionMainThreadTest, WorksOffItsMainQueueOnceItsMainThreadIsFree) {
    session_.mainThread().enqueue([this] { calls_.emplace_back("task"); });
    session_.faults().stallMainThread(1s);
    session_.advance(999ms);
    EXPECT_THAT(calls_, IsEmpty());
    session_.advance(1ms);
    EXPECT_THAT(calls_, ElementsAre("task"));
}

TEST_F(SessionMainThreadTest, OpensTheAccessibilityPaneForItsAddressAlone) {
    for (const char* text : {"https://kestrune.example/", "x-apple.systempreferences:",
                             "x-apple.systempreferences:com.apple.preference.security?Privacy_Camera"}) {
        Workspace::sharedWorkspace().openURL(URL::withString(text).value());
        EXPECT_FALSE(session_.accessibility().isPaneShown()) << text;
    }
    Workspace::sharedWorkspace().openURL(
        URL::withString("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility")
            .value());
    EXPECT_TRUE(session_.accessibility().isPaneShown());
    EXPECT_EQ(session_.openedURLs().size(), 4U);
}

TEST_F(SessionMainThreadTest, RefusesTextsAsURLsOnDemand) {
    session_.faults().refuseURLs(true);
    EXPECT_FALSE(URL::withString("https://kestrune.example/"));
    session_.faults().refuseURLs(false);
    EXPECT_TRUE(URL::withString("https://kestrune.example/"));
}

TEST_F(SessionMainThreadTest, DoesWorkOnAnotherThreadOnDemand) {
    EXPECT_TRUE(session_.mainThread().isCurrent());
    observeDisplays("observer");
    std::vector<bool> isCurrent;
    session_.faults().onAnotherThread([&] {
        isCurrent.push_back(MainActor::isCurrent());
        session_.changeDisplays({});
    });
    isCurrent.push_back(MainActor::isCurrent());
    EXPECT_THAT(isCurrent, ElementsAre(false, true));
    EXPECT_THAT(calls_, ElementsAre("observer"));
}

} // namespace
} // namespace kestrune::sim
