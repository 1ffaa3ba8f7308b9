// The timers on the session's run loop, in its default mode.
//
// Source: docs/MAC_FACTS.md, "The main thread".
#pragma once

#include "platform/Timer.h"
#include "sim/hardware/VirtualClock.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace kestrune::sim {

class Timers {
public:
    // `clock` must outlive the timers.
    explicit Timers(VirtualClock& clock) : clock_(clock) {}

    std::shared_ptr<Timer::State> schedule(Duration interval, bool repeats,
                                           std::function<void(Timer&)> block);
    void invalidate(Timer::State& timer);

    // The run loop leaves the default mode, while a menu is tracked or an alert is modal, and comes back to
    // it; then what fell due meanwhile fires, once. It runs nested: when it left twice, it is back after two
    // returns.
    void leaveDefaultMode() { ++otherModes_; }
    void enterDefaultMode();

    // Timers that may still fire.
    std::size_t count() const { return scheduled_.size(); }

    // The application's process has ended.
    void clear();

private:
    void scheduleFiring(const std::shared_ptr<Timer::State>& timer);
    void fire(const std::shared_ptr<Timer::State>& timer);

    VirtualClock& clock_;
    std::size_t otherModes_ = 0; // that the run loop is in, one inside the other
    std::vector<std::shared_ptr<Timer::State>> scheduled_;
    std::vector<std::shared_ptr<Timer::State>> missed_;
};

} // namespace kestrune::sim
