// The application's main thread as the platform makes it: its queue and its timers, in the order in which
// they were asked for.
#pragma once

#include "sim/hardware/VirtualClock.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace kestrune::simulate {

// Repeats as long as somebody holds it.
struct TimerModel {
    sim::Duration interval;
    sim::Duration due;
    std::function<void()> tick;
    bool isLate = false; // fell due while a menu or an alert was open
};

class MainThreadModel {
public:
    using Task = std::function<void()>;

    sim::Duration now() const { return now_; }

    // Runs that much later, at the earliest when time passes next, and not while an alert keeps the queue.
    void enqueue(Task task, sim::Duration delay = sim::Duration::zero());

    std::shared_ptr<TimerModel> repeat(sim::Duration interval, Task tick);

    // Timers wait while a menu is open, one in the other while several things are; then each fires once.
    void pauseTimers() { ++pauses_; }
    void resumeTimers();

    // A modal alert stops timers and queue.
    void beginAlert();
    void endAlert();

    void advance(sim::Duration duration);

    // The process has ended.
    void clear();

private:
    void schedule(sim::Duration delay, Task task);
    void scheduleTimer(const std::shared_ptr<TimerModel>& timer);
    void fire(const std::weak_ptr<TimerModel>& reference);

    sim::Duration now_{0};
    std::uint64_t sequence_ = 0;
    std::map<std::pair<sim::Duration, std::uint64_t>, Task> tasks_;
    std::size_t pauses_ = 0;
    std::vector<std::weak_ptr<TimerModel>> late_;
    bool isKept_ = false;
    std::vector<Task> kept_;
};

} // namespace kestrune::simulate
