// Timers on a run loop.
//
// Source: Foundation, NSTimer.h.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace kestrune {

// A retained NSTimer.
class Timer {
public:
    // scheduledTimerWithTimeInterval:repeats:block:, on the current run loop in its default mode: while a
    // menu is tracked or an alert is modal the timer does not fire, and what it missed is made up for once
    // afterwards. `interval` is in seconds. The run loop retains the timer until it is invalidated. `block`
    // gets the timer, lives until it returns, also when it invalidates the timer, and must not throw.
    static Timer scheduledTimer(double interval, bool repeats, std::function<void(Timer&)> block);

    // invalidate. The timer does not fire again. On the thread that scheduled it.
    void invalidate();

    struct State;
    explicit Timer(std::shared_ptr<State> state) : state_(std::move(state)) {}

private:
    std::shared_ptr<State> state_;
};

} // namespace kestrune
