#include "sim/hardware/PointerEvent.h"
#include "tests/Kestrune/GuardFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DockGuardCallback : public GuardFixture {
protected:
    Event* callBack(EventType type, sim::PointerEvent& incoming, void* userInfo) {
        return DockGuardController::eventTapCallback(nullptr, type, &incoming, userInfo);
    }

    // Inside the second display's band.
    sim::PointerEvent event{EventType::mouseMoved, {2000, 1079}};
};

TEST_F(DockGuardCallback, WithoutUserInfoReturnsTheEventUntouched) {
    refreshAndStart();
    EXPECT_EQ(callBack(EventType::mouseMoved, event, nullptr), &event);
    EXPECT_EQ(event.location, (Point{2000, 1079}));
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(DockGuardCallback, WithoutUserInfoReturnsADisabledNoticeUntouched) {
    refreshAndStart();
    EXPECT_EQ(callBack(EventType::tapDisabledByTimeout, event, nullptr), &event);
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(DockGuardCallback, EnablesTheTapAgainAfterATimeoutAndReturnsTheGivenEvent) {
    refreshAndStart();
    EXPECT_EQ(callBack(EventType::tapDisabledByTimeout, event, &guard), &event);
    EXPECT_EQ(event.location, (Point{2000, 1079}));
    EXPECT_THAT(session.journal().take(), ElementsAre("CGEventTapEnable(tap, true)"));
    EXPECT_THAT(session.logRecords(), IsEmpty());
}

TEST_F(DockGuardCallback, EnablesTheTapAgainAfterUserInput) {
    refreshAndStart();
    EXPECT_EQ(callBack(EventType::tapDisabledByUserInput, event, &guard), &event);
    EXPECT_THAT(session.journal().take(), Contains("CGEventTapEnable(tap, true)"));
}

TEST_F(DockGuardCallback, LeavesALateNoticeAloneAfterTheStop) {
    refreshAndStart();
    guard.stop();
    session.journal().take();
    EXPECT_EQ(callBack(EventType::tapDisabledByTimeout, event, &guard), &event);
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(DockGuardCallback, TreatsEveryOtherTypeAlike) {
    refreshAndStart();
    for (const EventType type :
         {EventType::mouseMoved, EventType::leftMouseDragged, EventType::rightMouseDragged,
          EventType::otherMouseDragged, static_cast<EventType>(0xFFFFFFFD)}) {
        sim::PointerEvent motion(type, {2000, 1079});
        EXPECT_EQ(callBack(type, motion, &guard), &motion);
        EXPECT_EQ(motion.location, (Point{2000, 1075}));
    }
}

TEST_F(DockGuardCallback, KeepsRunningThroughAStormOfDisabledTaps) {
    refreshAndStart();
    for (int round = 0; round < 1000; ++round) {
        session.faults().disableTaps(round % 2 == 0 ? EventType::tapDisabledByTimeout
                                                    : EventType::tapDisabledByUserInput);
        ASSERT_EQ(session.taps().enabledCount(), 1U);
        ASSERT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
    }
    EXPECT_TRUE(guard.isRunning());
    EXPECT_THAT(session.logRecords(), IsEmpty());
}

TEST_F(DockGuardCallback, IsEnabledAgainAfterTheMainThreadWasBusyForTooLong) {
    refreshAndStart();
    session.faults().stallMainThread(std::chrono::seconds(3));
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1079}));
    EXPECT_EQ(session.longestHold(), sim::Session::TapTimeout);
    EXPECT_EQ(session.taps().enabledCount(), 0U);
    session.advance(std::chrono::seconds(3));
    EXPECT_EQ(session.taps().enabledCount(), 1U);
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
}

TEST_F(DockGuardCallback, StaysRunningWhenThePermissionIsRevoked) {
    refreshAndStart();
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1079}));
    EXPECT_TRUE(guard.isRunning());
    EXPECT_EQ(session.taps().enabledCount(), 1U);
    EXPECT_EQ(session.longestHold(), sim::Session::TapTimeout);
    session.user().setPermission(sim::Permission::granted);
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
}

} // namespace
} // namespace kestrune
