// One session at a time, no platform without one, and nothing that survives it does harm.
#include "platform/AccessibilityTrust.h"
#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/DisplayUUID.h"
#include "platform/Log.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "platform/Screen.h"
#include "platform/StatusBar.h"
#include "platform/Timer.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace kestrune::sim {
namespace {

using testing::IsEmpty;

constexpr const char* NoSession = "Fatal error: A platform call needs a simulated session\\.";

TEST(SessionDeathTest, StopsTheProcessWhenThereIsOneAlready) {
    const Session session;
    EXPECT_DEATH(Session(), "Fatal error: A simulated session exists already\\.");
}

TEST(SessionDeathTest, StopsAPlatformCallThatHasNone) {
    EXPECT_DEATH(isProcessTrusted(), NoSession);
    EXPECT_DEATH(isProcessTrustedWithOptions({}), NoSession);
    EXPECT_DEATH(Application::nsApp(), NoSession);
    EXPECT_DEATH(Application::sharedApplication(), NoSession);
    EXPECT_DEATH(Bundle::mainBundle(), NoSession);
    EXPECT_DEATH(DisplayUUID::createFromDisplayID(1), NoSession);
    EXPECT_DEATH(Log("subsystem", "category"), NoSession);
    EXPECT_DEATH(Image::imageNamed("name"), NoSession);
    EXPECT_DEATH(MainActor::isCurrent(), NoSession);
    EXPECT_DEATH(MainActor::startTask([] {}), NoSession);
    EXPECT_DEATH(Menu(), NoSession);
    EXPECT_DEATH(Menu("title"), NoSession);
    EXPECT_DEATH(MenuItem(), NoSession);
    EXPECT_DEATH(MenuItem::separatorItem(), NoSession);
    EXPECT_DEATH(NotificationCenter::defaultCenter(), NoSession);
    EXPECT_DEATH(OperationQueue::mainQueue(), NoSession);
    EXPECT_DEATH(RunLoop::current(), NoSession);
    EXPECT_DEATH(Screen::screens(), NoSession);
    EXPECT_DEATH(Screen::mainScreen(), NoSession);
    EXPECT_DEATH(StatusBar::systemStatusBar(), NoSession);
    EXPECT_DEATH(Timer::scheduledTimer(1, false, [](Timer&) {}), NoSession);
    EXPECT_DEATH(URL::withString("text"), NoSession);
    EXPECT_DEATH(UserDefaults::standardUserDefaults(), NoSession);
    EXPECT_DEATH(Workspace::sharedWorkspace(), NoSession);
    contract::ReceivedEvents received;
    EXPECT_DEATH(contract::RecordingTap(received, {}), NoSession);
}

TEST(SessionDeathTest, StopsACallOfAnObjectThatSurvivedIt) {
    std::shared_ptr<UserDefaults> defaults;
    std::optional<DisplayUUID> uuid;
    {
        const Session session;
        defaults = UserDefaults::standardUserDefaults();
        uuid = DisplayUUID::createFromDisplayID(1);
        ASSERT_TRUE(uuid);
    }
    EXPECT_DEATH(defaults->boolForKey(UserDefaultsKey("key")), NoSession);
    EXPECT_DEATH(uuid->createString(), NoSession);
}

TEST(SessionDeathTest, CanFollowAnother) {
    {
        const Session session;
        EXPECT_EQ(&Session::current(), &session);
    }
    EXPECT_DEATH(Session::current(), NoSession);
    const Session session;
    EXPECT_EQ(&Session::current(), &session);
}

TEST(Session, StartsWithNothingOfTheOneBefore) {
    {
        Session session;
        UserDefaults::standardUserDefaults()->setBool(true, UserDefaultsKey("key"));
        session.user().setPermission(Permission::switchedOff);
        session.advance(std::chrono::seconds(5));
        Log("subsystem", "category").error(LogMessage::of<"message">());
    }
    Session session;
    EXPECT_THAT(session.defaults().entries(), IsEmpty());
    EXPECT_EQ(session.accessibility().permission(), Permission::granted);
    EXPECT_EQ(session.clock().now(), Duration::zero());
    EXPECT_THAT(session.logRecords(), IsEmpty());
    EXPECT_THAT(session.journal().lines(), IsEmpty());
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST(Session, CountsTheObjectsThatTheApplicationRetains) {
    const Session session;
    {
        const auto uuid = DisplayUUID::createFromDisplayID(1);
        ASSERT_TRUE(uuid);
        EXPECT_EQ(session.liveObjects(), 1);
        const DisplayUUID copy = *uuid; // NOLINT(performance-unnecessary-copy-initialization): copies retain.
        EXPECT_EQ(session.liveObjects(), 1);
        EXPECT_TRUE(copy.createString());
        EXPECT_EQ(session.liveObjects(), 1);
    }
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST(Session, CountsATapAndItsSourceUntilTheRunLoopLetsGo) {
    Session session;
    contract::ReceivedEvents received;
    contract::RecordingTap tap(received, {});
    EXPECT_EQ(session.liveObjects(), 2);
    ASSERT_TRUE(tap.schedule());
    const RunLoopSource source = tap.source();
    tap.releaseTap();
    tap.releaseSource();
    EXPECT_EQ(session.liveObjects(), 2);
    EXPECT_EQ(session.taps().count(), 1U);
    RunLoop::current().removeSource(source, RunLoopMode::commonModes);
    EXPECT_EQ(session.sources().count(), 0U);
    EXPECT_EQ(session.liveObjects(), 2);
}

TEST(Session, IsNotTouchedByObjectsOfTheOneBefore) {
    auto former = std::make_unique<Session>();
    auto uuid = DisplayUUID::createFromDisplayID(1);
    ASSERT_TRUE(uuid);
    contract::ReceivedEvents received;
    auto tap = EventTap::create(
        EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap,
        contract::MouseMovedMask,
        [](EventTapProxy*, EventType, Event* event, void*) noexcept { return event; }, nullptr);
    ASSERT_TRUE(tap);
    RunLoop::current().addSource(tap->createRunLoopSource(0), RunLoopMode::commonModes);
    std::optional<Log> log(std::in_place, "subsystem", "category");
    std::vector<Screen> screens = Screen::screens();
    former.reset();

    Session session;
    uuid.reset();
    tap.reset();
    log.reset();
    screens.clear();
    EXPECT_EQ(session.liveObjects(), 0);
    EXPECT_THAT(session.journal().lines(), IsEmpty());
}

TEST(Session, IsNotTouchedByTheMenusAndTimersOfTheOneBefore) {
    auto former = std::make_unique<Session>();
    std::optional<Menu> menu(std::in_place);
    menu->addItem(MenuItem());
    std::optional<StatusItem> statusItem = StatusBar::systemStatusBar().statusItem(10);
    statusItem->setMenu(*menu);
    std::optional<Timer> timer = Timer::scheduledTimer(1, true, [](Timer&) {});
    EXPECT_EQ(former->liveObjects(), 4);
    former.reset();

    Session session;
    menu.reset();
    statusItem.reset();
    timer.reset();
    EXPECT_EQ(session.liveObjects(), 0);
    EXPECT_THAT(session.journal().lines(), IsEmpty());
    EXPECT_EQ(session.timers().count(), 0U);
}

TEST(SessionDeathTest, StopsAnEventWithATypeThatIsANotice) {
    Session session;
    EXPECT_DEATH(session.post(EventType::tapDisabledByTimeout, {}),
                 "Fatal error: A notice to a tap is no event of the pointer\\.");
}

// Its objects end without any session to count them in, and the process goes on.
TEST(SessionDeathTest, MayEndBeforeTheObjectsThatCameFromIt) {
    EXPECT_EXIT(
        {
            std::optional<DisplayUUID> uuid;
            {
                const Session session;
                uuid = DisplayUUID::createFromDisplayID(1);
            }
            uuid.reset();
            std::exit(EXIT_SUCCESS);
        },
        testing::ExitedWithCode(EXIT_SUCCESS), "^$");
}

} // namespace
} // namespace kestrune::sim
