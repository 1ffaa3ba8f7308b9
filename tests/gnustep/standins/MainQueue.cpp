// The main operation queue, whose operations GNUstep runs on other threads.
//
// This is what we believe the Mac does, and no proof of it: what is dispatched to the main queue runs on the
// main thread after what runs there now, in order, also while a menu is tracked or an alert is modal; an
// observer's block runs inline when its notification is posted on the main thread.
#include "tests/gnustep/standins/MainQueue.h"

#include "mac/Vocabulary.h"
#include "mac/c/Dispatch.h"
#include "mac/objc/Pool.h"
#include "tests/gnustep/standins/Subclass.h"

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

struct Nothing {};

void perform(id receiver, const char* selector, id argument) {
    // Without a run loop GNUstep would perform it at once.
    send(classObject("NSRunLoop"), "currentRunLoop");
    const id modes = send(classObject("NSArray"), "arrayWithObjects:", NSDefaultRunLoopMode,
                          NSEventTrackingRunLoopMode, NSModalPanelRunLoopMode, id{});
    send<void>(receiver,
               "performSelectorOnMainThread:withObject:waitUntilDone:modes:", sel_registerName(selector),
               argument, mac::truth(false), modes);
}

struct DispatchedWork {
    void* context;
    void (*function)(void* context);
};

void runDispatchedWork(id work, SEL, id /*nothing*/) {
    const auto [context, function] = Subclass<DispatchedWork>::of(work);
    function(context);
}

void runOperation(id, SEL, id operation) { send<void>(operation, "start"); }

void addOperation(id queue, SEL, id operation) {
    if (mac::ns_thread::isMainThread(mac::ns_thread::type.object()) != 0) {
        runOperation(queue, nullptr, operation);
    } else {
        perform(queue, "kestruneRunOperation:", operation);
    }
}

id mainQueue(id, SEL) {
    static const id queue = Subclass<Nothing>("KestruneMainQueue", "NSOperationQueue")
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
    static const auto type =
        Subclass<DispatchedWork>("KestruneDispatchedWork").method("run:", runDispatchedWork);
    const id dispatched = type.make(context, work);
    perform(dispatched, "run:", nullptr);
    send<void>(dispatched, "release");
}

} // extern "C"
// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::gnustep
