// The main operation queue, whose operations GNUstep runs on other threads.
//
// This is what we believe the Mac does, and no proof of it: a block that is added runs on the main thread
// after what runs there now, in order, also while a menu is tracked or an alert is modal; an observer's block
// runs inline when its notification is posted on the main thread.
#include "tests/gnustep/standins/MainQueue.h"

#include "mac/Vocabulary.h"
#include "tests/gnustep/standins/Blocks.h"
#include "tests/gnustep/standins/Subclass.h"

// AppKit's names of the modes in which the user is waited for.
extern "C" {
extern const id NSEventTrackingRunLoopMode;
extern const id NSModalPanelRunLoopMode;
extern const id NSDefaultRunLoopMode;
}

namespace kestrune::gnustep {

namespace {

struct Nothing {};

void perform(id queue, const char* selector, id argument) {
    const id modes = send(classObject("NSArray"), "arrayWithObjects:", NSDefaultRunLoopMode,
                          NSEventTrackingRunLoopMode, NSModalPanelRunLoopMode, id{});
    send<void>(queue,
               "performSelectorOnMainThread:withObject:waitUntilDone:modes:", sel_registerName(selector),
               argument, mac::truth(false), modes);
}

void runBlock(id, SEL, id block) { callBlock(block); }

void addOperationWithBlock(id queue, SEL, id block) {
    const id copy = send(block, "copy");
    perform(queue, "kestruneRunBlock:", copy);
    send<void>(copy, "release");
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
                                .method("kestruneRunBlock:", runBlock)
                                .method("kestruneRunOperation:", runOperation)
                                .method("addOperationWithBlock:", addOperationWithBlock)
                                .method("addOperation:", addOperation)
                                .make();
    return queue;
}

} // namespace

void installMainQueue() { replaceMethod(classOf(classNamed("NSOperationQueue")), "mainQueue", mainQueue); }

} // namespace kestrune::gnustep
