// The sources on a CoreFoundation run loop.
//
// This is what we believe the Mac does, and no proof of it: a source is in a mode or not, however often it
// was added; the loop retains it, and it retains its port; the default mode is one of the common modes.
#include "tests/gnustep/standins/system/RunLoopSources.h"

#include "base/Fatal.h"
#include "mac/objc/Retained.h"
#include "tests/gnustep/standins/runtime/Subclass.h"
#include "tests/gnustep/standins/system/CoreFoundation.h"

#include <algorithm>
#include <vector>

namespace kestrune::gnustep {

namespace {

struct Source {
    mac::Retained port;
};

struct Entry {
    mac::Retained source;
    CFStringRef mode;
};

struct Loop {
    std::vector<Entry> entries;
    bool tracksMenu = false;
};

const Subclass<Source>& sources() {
    static const Subclass<Source> type("KestruneCFRunLoopSource");
    return type;
}

// Never destroyed, as Foundation is not there any more when the process ends.
Loop& mainLoop() {
    static Loop& loop = *new Loop;
    return loop;
}

Loop& loopOf(CFRunLoopRef runLoop) { return *reinterpret_cast<Loop*>(runLoop); }

std::vector<Entry>::iterator find(Loop& loop, id source, CFStringRef mode) {
    return std::find_if(loop.entries.begin(), loop.entries.end(), [&](const Entry& entry) {
        return entry.source.get() == source && entry.mode == mode;
    });
}

} // namespace

bool servesPort(id port) {
    const auto& entries = mainLoop().entries;
    return std::any_of(entries.begin(), entries.end(), [port](const Entry& entry) {
        const bool isInMode = entry.mode == kCFRunLoopCommonModes || !mainLoop().tracksMenu;
        return isInMode && Subclass<Source>::of(entry.source.get()).port.get() == port;
    });
}

void setTracksMenu(bool isTracking) { mainLoop().tracksMenu = isTracking; }

void removeRunLoopSources() { mainLoop().entries.clear(); }

extern "C" {

CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef /*allocator*/, CFMachPortRef port,
                                                 CFIndex /*order*/) {
    return reinterpret_cast<CFRunLoopSourceRef>(sources().make(mac::Retained::retaining(objectOf(port))));
}

CFRunLoopRef CFRunLoopGetCurrent() {
    if (send<BOOL>(classObject("NSThread"), "isMainThread") == 0) {
        fatal("Only the main thread's run loop has sources here.");
    }
    return reinterpret_cast<CFRunLoopRef>(&mainLoop());
}

void CFRunLoopAddSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFStringRef mode) {
    Loop& loop = loopOf(runLoop);
    if (find(loop, objectOf(source), mode) == loop.entries.end()) {
        loop.entries.push_back({mac::Retained::retaining(objectOf(source)), mode});
    }
}

void CFRunLoopRemoveSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFStringRef mode) {
    Loop& loop = loopOf(runLoop);
    const auto position = find(loop, objectOf(source), mode);
    if (position != loop.entries.end()) {
        // The source's end may reach back into the loop.
        const Entry removed = std::move(*position);
        loop.entries.erase(position);
    }
}

} // extern "C"

} // namespace kestrune::gnustep
