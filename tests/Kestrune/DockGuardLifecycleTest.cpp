#include "tests/Kestrune/GuardFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class DockGuardLifecycle : public GuardFixture {
protected:
    void expectStopped() {
        EXPECT_FALSE(guard.isRunning());
        EXPECT_EQ(session.taps().count(), 0U);
        EXPECT_EQ(session.sources().count(), 0U);
        EXPECT_EQ(session.liveObjects(), 0);
    }

    void expectRunning() {
        EXPECT_TRUE(guard.isRunning());
        EXPECT_EQ(session.taps().count(), 1U);
        EXPECT_EQ(session.taps().enabledCount(), 1U);
        EXPECT_EQ(session.sources().count(), 1U);
    }

    void expectOneErrorAndNoTap() {
        expectStopped();
        ASSERT_THAT(session.logRecords(), SizeIs(1));
        const sim::LogRecord& record = session.logRecords().front();
        EXPECT_EQ(record.level, sim::LogLevel::error);
        EXPECT_EQ(record.subsystem, "org.kestrune.Kestrune");
        EXPECT_EQ(record.category, "dockGuard");
        EXPECT_EQ(record.message, "Failed to create event tap. Accessibility permission required.");
        EXPECT_EQ(record.format, record.message);
    }
};

TEST_F(DockGuardLifecycle, StartsInOrder) {
    guard.start();
    EXPECT_THAT(session.journal().take(),
                ElementsAre("CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, "
                            "kCGEventTapOptionDefault, 0x080000E0)",
                            "CFMachPortCreateRunLoopSource(kCFAllocatorDefault, tap, 0)",
                            "CFRunLoopGetCurrent()",
                            "CFRunLoopAddSource(main, source, kCFRunLoopCommonModes)",
                            "CGEventTapEnable(tap, true)"));
    expectRunning();
    EXPECT_THAT(session.logRecords(), IsEmpty());
}

TEST_F(DockGuardLifecycle, StopsInOrder) {
    refreshAndStart();
    guard.stop();
    EXPECT_THAT(session.journal().take(),
                ElementsAre("CGEventTapEnable(tap, false)", "CFRunLoopGetCurrent()",
                            "CFRunLoopRemoveSource(main, source, kCFRunLoopCommonModes)", "CFRelease(source)",
                            "CFRelease(tap)"));
    expectStopped();
}

TEST_F(DockGuardLifecycle, DoesNothingWhenStoppedTwice) {
    refreshAndStart();
    guard.stop();
    EXPECT_THAT(callsOf([this] { guard.stop(); }), IsEmpty());
    expectStopped();
}

TEST_F(DockGuardLifecycle, DoesNothingWhenStoppedBeforeItEverStarted) {
    EXPECT_THAT(callsOf([this] { guard.stop(); }), IsEmpty());
    expectStopped();
}

TEST_F(DockGuardLifecycle, StartsAgainAfterAStop) {
    refreshAndStart();
    guard.stop();
    guard.start();
    expectRunning();
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
}

TEST_F(DockGuardLifecycle, LogsOneErrorWithoutThePermission) {
    session.user().setPermission(sim::Permission::notListed);
    EXPECT_THAT(callsOf([this] { guard.start(); }), hasCallAbout("CGEventTapCreate").Times(1));
    expectOneErrorAndNoTap();
}

TEST_F(DockGuardLifecycle, LogsOneErrorWhenTheSystemRefusesTheTapDespiteThePermission) {
    session.faults().refuseTapCreation(true);
    guard.start();
    expectOneErrorAndNoTap();
}

TEST_F(DockGuardLifecycle, LogsOneErrorWhenTheRowWasDeletedButReadsAsTrusted) {
    session.user().setPermission(sim::Permission::rowDeleted);
    guard.start();
    expectOneErrorAndNoTap();
}

TEST_F(DockGuardLifecycle, MakesItsLogChannelOnceAndOnlyWhenNeeded) {
    guard.start();
    guard.stop();
    session.faults().refuseTapCreation(true);
    const Calls refused = callsOf([this] {
        guard.start();
        guard.start();
    });
    EXPECT_THAT(refused, hasCallAbout("os_log_create(org.kestrune.Kestrune, dockGuard)").Times(1));
    EXPECT_THAT(session.logRecords(), SizeIs(2));
}

TEST_F(DockGuardLifecycle, ChangesNoFieldWhenTheTapIsRefused) {
    guard.refreshScreens();
    session.user().setPermission(sim::Permission::switchedOff);
    guard.start();
    EXPECT_THAT(guard.screensCache(), SizeIs(2));
    ASSERT_TRUE(guard.pinnedScreen());
    EXPECT_EQ(guard.pinnedScreen()->displayID, 1U);
    EXPECT_FALSE(guard.isRunning());
}

TEST_F(DockGuardLifecycle, LetsEveryEventPassBeforeTheFirstRefresh) {
    guard.start();
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1079}));
}

TEST_F(DockGuardLifecycle, ReleasesItsTapWithoutDisablingItWhenItGoes) {
    {
        DockGuardController shortLived;
        shortLived.start();
    }
    // The run loop still holds the source, and with it the tap: stopping is the owner's business.
    EXPECT_EQ(session.taps().enabledCount(), 1U);
    EXPECT_EQ(session.sources().count(), 1U);
}

TEST_F(DockGuardLifecycle, StartsOnceThePermissionArrives) {
    session.user().setPermission(sim::Permission::switchedOff);
    guard.start();
    session.user().setPermission(sim::Permission::granted);
    guard.start();
    expectRunning();
}

TEST_F(DockGuardLifecycle, StartedWhileRunningReplacesItsTap) {
    refreshAndStart();
    guard.start();
    // The new one stands before the old one goes.
    EXPECT_THAT(callsAbout("CGEventTapEnable", session.journal().take()),
                ElementsAre("CGEventTapEnable(tap, true)", "CGEventTapEnable(tap, false)"));
    expectRunning();
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
}

TEST_F(DockGuardLifecycle, KeepsItsTapWhenAnotherIsRefused) {
    refreshAndStart();
    session.faults().refuseTapCreation(true);
    guard.start();
    expectRunning();
    EXPECT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
}

TEST(DockGuardLog, HasAnEmptySubsystemWhenTheBundleHasNoIdentifier) {
    sim::SessionOptions options;
    options.permission = sim::Permission::notListed;
    options.bundle.infoDictionary.clear();
    sim::Session session(options);
    DockGuardController guard;
    guard.start();
    ASSERT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(session.logRecords().front().subsystem, "");
}

} // namespace
} // namespace kestrune
