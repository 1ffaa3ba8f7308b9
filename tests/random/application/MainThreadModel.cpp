#include "tests/random/application/MainThreadModel.h"

namespace kestrune::simulate {

void MainThreadModel::schedule(sim::Duration delay, Task task) {
    tasks_.emplace(std::pair(now_ + delay, sequence_++), std::move(task));
}

void MainThreadModel::enqueue(Task task, sim::Duration delay) {
    schedule(delay, [this, work = std::move(task)] {
        if (isKept_) {
            kept_.push_back(work);
        } else {
            work();
        }
    });
}

std::shared_ptr<TimerModel> MainThreadModel::repeat(sim::Duration interval, Task tick) {
    auto timer = std::make_shared<TimerModel>();
    timer->interval = interval;
    timer->due = now_ + interval;
    timer->tick = std::move(tick);
    scheduleTimer(timer);
    return timer;
}

void MainThreadModel::scheduleTimer(const std::shared_ptr<TimerModel>& timer) {
    schedule(timer->due - now_, [this, reference = std::weak_ptr(timer)] { fire(reference); });
}

void MainThreadModel::fire(const std::weak_ptr<TimerModel>& reference) {
    const std::shared_ptr<TimerModel> timer = reference.lock();
    if (!timer) {
        return;
    }
    if (pauses_ > 0) {
        timer->isLate = true;
        late_.push_back(reference);
        return;
    }
    timer->tick();
    timer->isLate = false;
    while (timer->due <= now_) {
        timer->due += timer->interval;
    }
    scheduleTimer(timer);
}

void MainThreadModel::resumeTimers() {
    if (--pauses_ > 0) {
        return;
    }
    for (const auto& timer : std::exchange(late_, {})) {
        fire(timer);
    }
}

void MainThreadModel::beginAlert() {
    isKept_ = true;
    pauseTimers();
}

void MainThreadModel::endAlert() {
    isKept_ = false;
    resumeTimers();
    for (Task& task : std::exchange(kept_, {})) {
        enqueue(std::move(task));
    }
}

void MainThreadModel::advance(sim::Duration duration) {
    const sim::Duration end = now_ + duration;
    while (!tasks_.empty() && tasks_.begin()->first.first <= end) {
        auto next = tasks_.extract(tasks_.begin());
        now_ = next.key().first;
        next.mapped()();
    }
    now_ = end;
}

void MainThreadModel::clear() {
    tasks_.clear();
    late_.clear();
    kept_.clear();
    pauses_ = 0;
    isKept_ = false;
}

} // namespace kestrune::simulate
