#include "sim/hardware/VirtualClock.h"

#include <algorithm>

namespace kestrune::sim {

void VirtualClock::schedule(Duration delay, std::function<void()> task) {
    tasks_.emplace(std::pair(now_ + delay, nextSequence_++), std::move(task));
}

void VirtualClock::advance(Duration duration) {
    const Duration end = now_ + duration;
    while (!tasks_.empty() && tasks_.begin()->first.first <= end) {
        auto next = tasks_.extract(tasks_.begin());
        now_ = std::max(now_, next.key().first);
        next.mapped()();
    }
    now_ = std::max(now_, end);
}

} // namespace kestrune::sim
