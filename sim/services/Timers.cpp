#include "sim/services/Timers.h"

#include "sim/services/TimerState.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

namespace {

// What NSTimer makes of an interval of 0 or less.
constexpr Duration ShortestInterval = std::chrono::microseconds(100);

} // namespace

std::shared_ptr<Timer::State> Timers::schedule(Duration interval, bool repeats,
                                               std::function<void(Timer&)> block) {
    auto timer = std::make_shared<Timer::State>();
    timer->interval = interval > Duration::zero() ? interval : ShortestInterval;
    timer->due = clock_.now() + timer->interval;
    timer->repeats = repeats;
    timer->block = std::make_shared<std::function<void(Timer&)>>(std::move(block));
    scheduled_.push_back(timer);
    scheduleFiring(timer);
    return timer;
}

void Timers::scheduleFiring(const std::shared_ptr<Timer::State>& timer) {
    clock_.schedule(timer->due - clock_.now(), [this, weakTimer = std::weak_ptr(timer)] {
        if (const auto due = weakTimer.lock()) {
            fire(due);
        }
    });
}

void Timers::fire(const std::shared_ptr<Timer::State>& timer) {
    if (!timer->isValid) {
        return;
    }
    if (otherModes_ > 0) {
        missed_.push_back(timer);
        return;
    }
    // The block stays alive while it runs, also when it invalidates its timer.
    const auto block = timer->block;
    Timer handle(timer);
    (*block)(handle);
    if (!timer->isValid) {
        return;
    }
    if (!timer->repeats) {
        invalidate(*timer);
        return;
    }
    const Duration late = clock_.now() - timer->due;
    timer->due += (late / timer->interval + 1) * timer->interval;
    scheduleFiring(timer);
}

void Timers::invalidate(Timer::State& timer) {
    timer.isValid = false;
    timer.block = nullptr;
    const auto isTimer = [&](const auto& candidate) { return candidate.get() == &timer; };
    std::erase_if(scheduled_, isTimer);
    std::erase_if(missed_, isTimer);
}

void Timers::enterDefaultMode() {
    if (otherModes_ > 0) {
        --otherModes_;
    }
    // In another mode still, each is missed again.
    for (const auto& timer : std::exchange(missed_, {})) {
        fire(timer);
    }
}

void Timers::clear() {
    for (const auto& timer : std::exchange(scheduled_, {})) {
        timer->isValid = false;
        timer->block = nullptr;
    }
    missed_.clear();
    otherModes_ = 0;
}

} // namespace kestrune::sim
