#include "platform/RunLoop.h"

#include "sim/seam/RecordCall.h"
#include "sim/seam/RunLoopState.h"
#include "sim/services/Current.h"
#include "sim/services/RunLoopSources.h"

#include <string_view>
#include <utility>

namespace kestrune {

namespace {

std::string_view nameOf(RunLoopMode mode) {
    return mode == RunLoopMode::commonModes ? "kCFRunLoopCommonModes" : "kCFRunLoopDefaultMode";
}

} // namespace

struct RunLoop::State {};

RunLoopSource::RunLoopSource(std::shared_ptr<State> state) : state_(std::move(state)) {}

RunLoop RunLoop::current() {
    sim::recordCall("CFRunLoopGetCurrent()");
    // A session has one thread and so one run loop, whose sources are a service.
    return RunLoop(nullptr);
}

void RunLoop::addSource(const RunLoopSource& source, RunLoopMode mode) {
    sim::recordCall("CFRunLoopAddSource(main, source, ", nameOf(mode), ")");
    sim::current<sim::RunLoopSources>().add(source.state_, source.state_->tap, mode);
}

void RunLoop::removeSource(const RunLoopSource& source, RunLoopMode mode) {
    sim::recordCall("CFRunLoopRemoveSource(main, source, ", nameOf(mode), ")");
    sim::current<sim::RunLoopSources>().remove(source.state_, mode);
}

} // namespace kestrune
