// The session's time, which passes only when it is told to.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace kestrune::sim {

using Duration = std::chrono::nanoseconds;

class VirtualClock {
public:
    // Time since the session began.
    Duration now() const { return now_; }

    // Runs `task` once that much time has passed. Tasks run in order of due time, then of scheduling.
    void schedule(Duration delay, std::function<void()> task);

    // Lets time pass and runs what falls due on the way, each task at its due time. A task may schedule
    // others.
    void advance(Duration duration);

    // Lets time pass while nothing can run; what fell due meanwhile runs, late, at the next advance.
    void elapse(Duration duration) { now_ += duration; }

private:
    Duration now_{0};
    std::uint64_t nextSequence_ = 0;
    std::map<std::pair<Duration, std::uint64_t>, std::function<void()>> tasks_;
};

} // namespace kestrune::sim
