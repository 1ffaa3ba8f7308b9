#include "platform/Timer.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/TimerState.h"
#include "sim/services/Timers.h"

#include <chrono>
#include <utility>

namespace kestrune {

Timer Timer::scheduledTimer(double interval, bool repeats, std::function<void(Timer&)> block) {
    sim::recordCall("+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] ", interval, ", ", repeats);
    const auto length = std::chrono::duration_cast<sim::Duration>(std::chrono::duration<double>(interval));
    return Timer(sim::current<sim::Timers>().schedule(length, repeats, std::move(block)));
}

void Timer::invalidate() {
    sim::recordCall("-[NSTimer invalidate]");
    sim::current<sim::Timers>().invalidate(*state_);
}

} // namespace kestrune
