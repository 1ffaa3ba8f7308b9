#include "tests/mac/EventLoop.h"

#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/mac/Send.h"

extern "C" {
// NOLINTNEXTLINE(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
extern id NSApp;
// NOLINTNEXTLINE(readability-identifier-naming)
extern const id NSDefaultRunLoopMode;
}

namespace kestrune::native {

namespace {

id dateIn(double seconds) { return send(classObject("NSDate"), "dateWithTimeIntervalSinceNow:", seconds); }

bool isToCome(id date) { return send<double>(date, "timeIntervalSinceNow") > 0; }

void handleEvents() {
    constexpr auto AnyEvent = ~mac::Unsigned{0};
    const id past = send(classObject("NSDate"), "distantPast");
    while (const id event = send(NSApp, "nextEventMatchingMask:untilDate:inMode:dequeue:", AnyEvent, past,
                                 NSDefaultRunLoopMode, mac::truth(true))) {
        send<void>(NSApp, "sendEvent:", event);
    }
}

// Events wake no run loop that AppKit does not run, so they are looked for now and then.
void turnRunLoop(id mode, id limit) {
    constexpr double Look = 0.01; // seconds
    if (mode == NSDefaultRunLoopMode) {
        handleEvents();
    }
    send<BOOL>(send(classObject("NSRunLoop"), "currentRunLoop"), "runMode:beforeDate:", mode,
               send(dateIn(Look), "earlierDate:", limit));
}

} // namespace

void runEventLoop(id mode, double seconds) {
    const mac::Pool pool;
    const id limit = dateIn(seconds);
    do {
        turnRunLoop(mode, limit);
    } while (isToCome(limit));
    // What is due by now.
    turnRunLoop(mode, limit);
}

} // namespace kestrune::native
