#include "sim/services/MainThread.h"

#include "sim/services/Timers.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

void MainThread::enqueue(std::function<void()> task, Duration delay) {
    clock_.schedule(delay, [this, process = processNumber_, queued = std::move(task)] {
        if (process != processNumber_) {
            return;
        }
        if (isQueueKept_) {
            waitingForQueue_.push_back(queued);
        } else {
            queued();
        }
    });
}

void MainThread::beginModalAlert() {
    isQueueKept_ = true;
    timers_.leaveDefaultMode();
}

void MainThread::endModalAlert() {
    isQueueKept_ = false;
    timers_.enterDefaultMode();
    for (auto& task : std::exchange(waitingForQueue_, {})) {
        enqueue(std::move(task));
    }
}

void MainThread::stall(Duration duration) { freeAt_ = std::max(freeAt_, clock_.now() + duration); }

void MainThread::workElsewhere(const std::function<void()>& work) {
    isCurrent_ = false;
    work();
    isCurrent_ = true;
}

void MainThread::clear() {
    ++processNumber_;
    isQueueKept_ = false;
    waitingForQueue_.clear();
    freeAt_ = clock_.now();
}

} // namespace kestrune::sim
