// The run loop that delivers a tap's events.
//
// Source: CoreFoundation, CFRunLoop.h.
#pragma once

#include <memory>

namespace kestrune {

enum class RunLoopMode {
    defaultMode, // kCFRunLoopDefaultMode
    commonModes, // kCFRunLoopCommonModes: also while a menu is tracked or an alert is modal
};

// A retained CFRunLoopSourceRef; it retains the port that it was made from.
class RunLoopSource {
private:
    friend class EventTap;
    friend class RunLoop;

    struct State;
    explicit RunLoopSource(std::shared_ptr<State> state);

    std::shared_ptr<State> state_;
};

// A borrowed CFRunLoopRef; it lives as long as its thread.
class RunLoop {
public:
    // CFRunLoopGetCurrent(): the calling thread's run loop.
    static RunLoop current();

    // CFRunLoopAddSource. The loop retains the source. Adding a source twice to a mode has no further effect.
    void addSource(const RunLoopSource& source, RunLoopMode mode);

    // CFRunLoopRemoveSource. Removing a source that is not in the mode has no effect.
    void removeSource(const RunLoopSource& source, RunLoopMode mode);

private:
    struct State;
    explicit RunLoop(State* state) : state_(state) {}

    State* state_;
};

} // namespace kestrune
