// The application's process on GNUstep: the entry point that is shipped, in a session that is made before it.
// Its defaults are in the home that the environment names; with KESTRUNE_PERMITTED in the environment it has
// the Accessibility permission, and after the signal SIGUSR1 as well.
#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "platform/Timer.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/harness/TimeLimit.h"
#include "tests/gnustep/process/MenuBar.h"
#include "tests/gnustep/process/Session.h"
#include "tests/gnustep/process/SystemWatch.h"
#include "tests/gnustep/process/WindowWatch.h"

#include <csignal>
#include <cstdlib>

// NOLINTNEXTLINE(readability-identifier-naming): the name is AppKit's.
extern "C" const id NSEventTrackingRunLoopMode;

namespace kestrune::gnustep {

namespace {

constexpr unsigned SecondsForASession = 100;
constexpr double HeartbeatInSeconds = 0.02;

// The user has switched the application on in the system's settings.
volatile std::sig_atomic_t isGranted = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

// The loop in which GNUstep waits for the release of a button sleeps in the same way, and in a mode of its
// own. What the timer does is of no matter; that it fires makes the loop look.
void beatWhileTracking() {
    const mac::Pool pool;
    const id timer = send(classObject("NSTimer"),
                          "timerWithTimeInterval:target:selector:userInfo:repeats:", HeartbeatInSeconds,
                          classObject("NSObject"), sel_registerName("class"), id{}, mac::truth(true));
    send<void>(send(classObject("NSRunLoop"), "currentRunLoop"), "addTimer:forMode:", timer,
               NSEventTrackingRunLoopMode);
}

void beat(Timer& /*timer*/) {
    if (isGranted != 0) {
        grantPermission();
    }
    watchSystem();
    watchWindows();
}

} // namespace

// With --wrap=main the linker lets the process begin at the second, and knows the shipped `main` as the
// first.
extern "C" int applicationsMain() asm("__real_main");
extern "C" int processMain() asm("__wrap_main");

extern "C" int processMain() {
    limitTime(SecondsForASession);
    const char* const home = std::getenv("HOME");
    if (home == nullptr) {
        fatal("The environment names no home for the session.");
    }
    beginSession(home, std::getenv("KESTRUNE_PERMITTED") != nullptr);
    watchPresses();
    std::signal(SIGUSR1, [](int) { isGranted = 1; });
    // The delegate hears of the launch as well, before or after; the task comes after both.
    NotificationCenter::defaultCenter().addObserver(
        NotificationName("NSApplicationDidFinishLaunchingNotification"), OperationQueue::mainQueue(),
        [](const Notification&) { MainActor::startTask(showMenuBar); });
    // GNUstep's loop sleeps until the X server sends something, even when an event that Xlib has read already
    // waits to be handled. Without this a press of the button was now and then noticed with the next one.
    Timer::scheduledTimer(HeartbeatInSeconds, true, beat);
    beatWhileTracking();
    return applicationsMain();
}

} // namespace kestrune::gnustep
