#include "platform/Timer.h"

#include "sim/seam/TimerState.h"
#include "sim/session/Session.h"

#include <chrono>
#include <utility>

namespace kestrune {

Timer Timer::scheduledTimer(double interval, bool repeats, std::function<void(Timer&)> block) {
    sim::Session& session = sim::Session::current();
    session.journal().record("+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] ", interval, ", ",
                             repeats);
    const auto length = std::chrono::duration_cast<sim::Duration>(std::chrono::duration<double>(interval));
    return Timer(session.timers().schedule(length, repeats, std::move(block)));
}

void Timer::invalidate() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSTimer invalidate]");
    session.timers().invalidate(*state_);
}

} // namespace kestrune
