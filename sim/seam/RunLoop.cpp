#include "platform/RunLoop.h"

#include "sim/seam/RunLoopState.h"
#include "sim/session/Session.h"

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
    sim::Session::current().journal().record("CFRunLoopGetCurrent()");
    // A session has one thread and so one run loop: the session itself.
    return RunLoop(nullptr);
}

void RunLoop::addSource(const RunLoopSource& source, RunLoopMode mode) {
    sim::Session& session = sim::Session::current();
    session.journal().record("CFRunLoopAddSource(main, source, ", nameOf(mode), ")");
    session.sources().add(source.state_, source.state_->tap, mode);
}

void RunLoop::removeSource(const RunLoopSource& source, RunLoopMode mode) {
    sim::Session& session = sim::Session::current();
    session.journal().record("CFRunLoopRemoveSource(main, source, ", nameOf(mode), ")");
    session.sources().remove(source.state_, mode);
}

} // namespace kestrune
