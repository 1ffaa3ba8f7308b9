// The lines that platform calls leave in the journal, and faults that a test can arrange.
#include "platform/AccessibilityTrust.h"
#include "platform/Bundle.h"
#include "platform/DisplayUUID.h"
#include "platform/Log.h"
#include "platform/Screen.h"
#include "platform/UserDefaults.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Event* passOn(EventTapProxy* /*proxy*/, EventType /*type*/, Event* event, void* /*userInfo*/) noexcept {
    return event;
}

std::optional<EventTap> createTap(EventTapLocation location, EventTapPlacement placement,
                                  EventTapOptions options) {
    return EventTap::create(location, placement, options, 0x080000E0, passOn, nullptr);
}

TEST(PlatformCalls, AreJournaledForTheLifeOfATap) {
    Session session;
    {
        const auto tap =
            createTap(EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap);
        ASSERT_TRUE(tap);
        const RunLoopSource source = tap->createRunLoopSource(-5);
        RunLoop::current().addSource(source, RunLoopMode::commonModes);
        tap->enable(true);
        RunLoop::current().removeSource(source, RunLoopMode::defaultMode);
        RunLoop::current().removeSource(source, RunLoopMode::commonModes);
    }
    EXPECT_THAT(
        session.journal().take(),
        ElementsAre("CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, "
                    "kCGEventTapOptionDefault, 0x080000E0)",
                    "CFMachPortCreateRunLoopSource(kCFAllocatorDefault, tap, -5)", "CFRunLoopGetCurrent()",
                    "CFRunLoopAddSource(main, source, kCFRunLoopCommonModes)", "CGEventTapEnable(tap, true)",
                    "CFRunLoopGetCurrent()", "CFRunLoopRemoveSource(main, source, kCFRunLoopDefaultMode)",
                    "CFRunLoopGetCurrent()", "CFRunLoopRemoveSource(main, source, kCFRunLoopCommonModes)",
                    "CFRelease(source)", "CFRelease(tap)"));
}

TEST(PlatformCalls, AreJournaledWithTheNamesOfTheirConstants) {
    Session session;
    createTap(EventTapLocation::hid, EventTapPlacement::tailAppend, EventTapOptions::listenOnly);
    createTap(EventTapLocation::annotatedSession, EventTapPlacement::headInsert, EventTapOptions::defaultTap);
    EXPECT_THAT(session.journal().take(),
                ElementsAre("CGEventTapCreate(kCGHIDEventTap, kCGTailAppendEventTap, "
                            "kCGEventTapOptionListenOnly, 0x080000E0)",
                            "CFRelease(tap)",
                            "CGEventTapCreate(kCGAnnotatedSessionEventTap, kCGHeadInsertEventTap, "
                            "kCGEventTapOptionDefault, 0x080000E0)",
                            "CFRelease(tap)"));
}

TEST(PlatformCalls, AreJournaledForDisplaysAndTheirUUIDs) {
    Session session;
    const std::vector<Screen> screens = Screen::screens();
    ASSERT_EQ(screens.size(), 1U);
    screens[0].deviceDescription("NSScreenNumber");
    screens[0].localizedName();
    screens[0].frame();
    Screen::mainScreen();
    DisplayUUID::createFromDisplayID(1)->createString();
    EXPECT_THAT(session.journal().take(),
                ElementsAre("NSScreen.screens", "-[NSScreen deviceDescription][NSScreenNumber]",
                            "-[NSScreen localizedName]", "-[NSScreen frame]", "NSScreen.mainScreen",
                            "CGDisplayCreateUUIDFromDisplayID(1)", "CFUUIDCreateString(kCFAllocatorDefault)",
                            "CFRelease(string)", "CFRelease(uuid)"));
}

TEST(PlatformCalls, AreJournaledForDefaultsTrustBundleAndLog) {
    Session session;
    const UserDefaultsKey key("key");
    const auto defaults = UserDefaults::standardUserDefaults();
    defaults->objectForKey(key);
    defaults->boolForKey(key);
    defaults->doubleForKey(key);
    defaults->stringForKey(key);
    defaults->setBool(true, key);
    defaults->setObject("text", key);
    defaults->setObject(std::nullopt, key);
    isProcessTrusted();
    Bundle::mainBundle().bundleIdentifier();
    Log("subsystem", "category").error(LogMessage::of<"message">());
    EXPECT_THAT(session.journal().take(),
                ElementsAre("NSUserDefaults.standardUserDefaults", "-[NSUserDefaults objectForKey:] key",
                            "-[NSUserDefaults boolForKey:] key", "-[NSUserDefaults doubleForKey:] key",
                            "-[NSUserDefaults stringForKey:] key",
                            "-[NSUserDefaults setBool:forKey:] key = true",
                            "-[NSUserDefaults setObject:forKey:] key = text",
                            "-[NSUserDefaults setObject:forKey:] key = nil", "AXIsProcessTrusted() -> true",
                            "NSBundle.mainBundle", "-[NSBundle bundleIdentifier]",
                            "os_log_create(subsystem, category)", "os_log_error(category, message)"));
}

TEST(PlatformCalls, AreJournaledForAnEventInItsTap) {
    Session session;
    contract::ReceivedEvents received;
    contract::RecordingTap tap(received, {});
    ASSERT_TRUE(tap.schedule());
    tap.onPointerEvent([](Event* event) {
        event->setLocation({1.5, 2});
        return event;
    });
    session.journal().take();
    session.post(EventType::mouseMoved, {10, 10});
    EXPECT_THAT(session.journal().take(),
                ElementsAre("CGEventGetLocation(event)", "CGEventSetLocation(event, (1.5, 2))"));
}

TEST(PlatformCalls, LeaveNothingWhileTheJournalIsOff) {
    SessionOptions options;
    options.recordJournal = false;
    Session session(options);
    EXPECT_TRUE(isProcessTrusted());
    EXPECT_TRUE(
        createTap(EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap));
    EXPECT_THAT(session.journal().lines(), IsEmpty());
}

TEST(PlatformCalls, RefuseATapAlthoughThePermissionIsThere) {
    Session session;
    session.faults().refuseTapCreation(true);
    EXPECT_TRUE(isProcessTrusted());
    EXPECT_FALSE(
        createTap(EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap));
    session.faults().refuseTapCreation(false);
    EXPECT_TRUE(
        createTap(EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap));
}

TEST(PlatformCalls, ListTheApplicationWhenTheyCreateNoTap) {
    SessionOptions options;
    options.permission = Permission::notListed;
    Session session(options);
    EXPECT_FALSE(
        createTap(EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::defaultTap));
    EXPECT_EQ(session.accessibility().permission(), Permission::switchedOff);
    EXPECT_FALSE(session.accessibility().isDialogShown());
}

TEST(PlatformCalls, CreateATapThatOnlyListensWithoutThePermission) {
    SessionOptions options;
    options.permission = Permission::notListed;
    const Session session(options);
    EXPECT_TRUE(
        createTap(EventTapLocation::session, EventTapPlacement::headInsert, EventTapOptions::listenOnly));
}

TEST(PlatformCalls, UseUpOneScriptedReadOfTheDisplaysEach) {
    Session session;
    session.displays().scriptReads({{}});
    EXPECT_TRUE(Screen::mainScreen());
    EXPECT_THAT(Screen::screens(), IsEmpty());
    EXPECT_EQ(Screen::screens().size(), 1U);
}

TEST(PlatformCalls, LogWithTheirLevel) {
    const Session session;
    Log("subsystem", "category").error(LogMessage::of<"message">());
    Log("subsystem", "category").debug(LogMessage::of<"message">());
    ASSERT_EQ(session.logRecords().size(), 2U);
    EXPECT_EQ(session.logRecords()[0].level, LogLevel::error);
    EXPECT_EQ(session.logRecords()[1].level, LogLevel::debug);
}

} // namespace
} // namespace kestrune::sim
