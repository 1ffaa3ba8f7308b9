// The main thread of the application: what waits for its turn there, and what keeps it from that.
//
// Source: docs/MAC_FACTS.md, "The main thread".
#pragma once

#include "sim/hardware/VirtualClock.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace kestrune::sim {

class Timers;

class MainThread {
public:
    // `clock` and `timers` must outlive the thread.
    MainThread(VirtualClock& clock, Timers& timers) : clock_(clock), timers_(timers) {}

    // Runs on the main thread after that time, at the earliest when time passes next, if the process is still
    // the same then.
    void enqueue(std::function<void()> task, Duration delay = Duration::zero());

    // An alert that was shown from the main queue keeps it, and the run loop from its default mode, until the
    // alert is closed.
    void beginModalAlert();
    void endModalAlert();

    // The thread is busy for that long. Nothing runs on it before.
    void stall(Duration duration);
    Duration freeAt() const { return freeAt_; }
    bool isFree() const { return clock_.now() >= freeAt_; }

    // What `work` makes the application do happens on another thread.
    void workElsewhere(const std::function<void()>& work);

    // Whether the application runs on it.
    bool isCurrent() const { return isCurrent_; }

    // The application's process has ended.
    void clear();

private:
    VirtualClock& clock_;
    Timers& timers_;
    std::uint64_t processNumber_ = 0;
    bool isQueueKept_ = false;
    std::vector<std::function<void()>> waitingForQueue_;
    bool isCurrent_ = true;
    Duration freeAt_{0};
};

} // namespace kestrune::sim
