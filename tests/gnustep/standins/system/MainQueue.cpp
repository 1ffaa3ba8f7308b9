// The main operation queue, whose operations GNUstep runs on other threads.
//
// This is what we believe the Mac does, and no proof of it: what is dispatched to the main queue runs on the
// main thread after what runs there now, in order, also while a menu is tracked or an alert is modal; what is
// dispatched for later runs then; an observer's block runs inline when its notification is posted on the main
// thread.
#include "tests/gnustep/standins/system/MainQueue.h"

#include "base/Fatal.h"
#include "mac/c/Dispatch.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

// AppKit's names of the modes in which the user is waited for.
extern "C" {
extern const id NSEventTrackingRunLoopMode;
extern const id NSModalPanelRunLoopMode;
extern const id NSDefaultRunLoopMode;
}

// NOLINTNEXTLINE(readability-identifier-naming): the name is the platform's.
struct dispatch_queue_s {};

namespace kestrune::gnustep {

namespace {

constexpr double NanosecondsPerSecond = 1e9;

id commonModes() {
    return send(classObject("NSArray"), "arrayWithObjects:", NSDefaultRunLoopMode, NSEventTrackingRunLoopMode,
                NSModalPanelRunLoopMode, id{});
}

void perform(id receiver, const char* selector, id argument) {
    // Without a run loop GNUstep would perform it at once.
    send(classObject("NSRunLoop"), "currentRunLoop");
    send<void>(receiver,
               "performSelectorOnMainThread:withObject:waitUntilDone:modes:", sel_registerName(selector),
               argument, mac::truth(false), commonModes());
}

struct DispatchedWork {
    void* context;
    void (*function)(void* context);
};

void runDispatchedWork(id work, SEL, id /*nothing*/) {
    const auto [context, function] = Subclass<DispatchedWork>::of(work);
    function(context);
}

mac::Retained dispatchedWork(void* context, void (*work)(void* context)) {
    static const auto type =
        Subclass<DispatchedWork>("KestruneDispatchedWork").method("run:", runDispatchedWork);
    return mac::Retained::adopting(type.make(context, work));
}

void runOperation(id, SEL, id operation) { send<void>(operation, "start"); }

void addOperation(id queue, SEL, id operation) {
    if (mac::foundation.thread.isMainThread() != 0) {
        runOperation(queue, nullptr, operation);
    } else {
        perform(queue, "kestruneRunOperation:", operation);
    }
}

id mainQueue(id, SEL) {
    static const id queue = Subclass<NoValue>("KestruneMainQueue", "NSOperationQueue")
                                .method("kestruneRunOperation:", runOperation)
                                .method("addOperation:", addOperation)
                                .make();
    return queue;
}

} // namespace

void installMainQueue() { replaceMethod(classOf(classNamed("NSOperationQueue")), "mainQueue", mainQueue); }

// NOLINTBEGIN(readability-identifier-naming): the names are the platform's.
extern "C" {

dispatch_queue_s _dispatch_main_q;

void dispatch_async_f(dispatch_queue_s* /*queue*/, void* context, void (*work)(void* context)) {
    perform(dispatchedWork(context, work).get(), "run:", nullptr);
}

// Counted from the call, as nobody asks for a time and keeps it.
std::uint64_t dispatch_time(std::uint64_t when, std::int64_t delta) {
    if (when != 0) {
        fatal("Nothing but the present is known here.");
    }
    return static_cast<std::uint64_t>(delta);
}

void dispatch_after_f(std::uint64_t when, dispatch_queue_s* /*queue*/, void* context,
                      void (*work)(void* context)) {
    const mac::Pool pool;
    const mac::Retained dispatched = dispatchedWork(context, work);
    send<void>(dispatched.get(), "performSelector:withObject:afterDelay:inModes:", sel_registerName("run:"),
               id{}, static_cast<double>(when) / NanosecondsPerSecond, commonModes());
}

} // extern "C"
// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::gnustep
