#include "platform/RunLoop.h"

#include "mac/RunLoopState.h"

namespace kestrune {

namespace {

CFStringRef nameOf(RunLoopMode mode) {
    return mode == RunLoopMode::commonModes ? kCFRunLoopCommonModes : kCFRunLoopDefaultMode;
}

CFRunLoopRef asRunLoop(void* state) { return static_cast<CFRunLoopRef>(state); }

} // namespace

RunLoopSource::RunLoopSource(std::shared_ptr<State> state) : state_(std::move(state)) {}

// The run loop itself.
struct RunLoop::State {};

RunLoop RunLoop::current() { return RunLoop(reinterpret_cast<State*>(CFRunLoopGetCurrent())); }

void RunLoop::addSource(const RunLoopSource& source, RunLoopMode mode) {
    CFRunLoopAddSource(asRunLoop(state_), source.state_->source.get(), nameOf(mode));
}

void RunLoop::removeSource(const RunLoopSource& source, RunLoopMode mode) {
    CFRunLoopRemoveSource(asRunLoop(state_), source.state_->source.get(), nameOf(mode));
}

} // namespace kestrune
