#include "platform/MainActor.h"

#include "sim/Session.h"

#include <utility>

namespace kestrune {

void MainActor::startTask(std::function<void()> body) {
    sim::Session& session = sim::Session::current();
    session.journal().record("Task on the main actor");
    session.enqueueOnMainQueue(std::move(body));
}

struct SleepingTask::State {
    std::function<void()> work; // empty once it has begun
    bool hasFallenAsleep = false;
    bool isCancelled = false;

    // Does nothing to one that has woken up before.
    void wake() {
        if (const auto begun = std::exchange(work, nullptr)) {
            begun();
        }
    }
};

// A task that is cancelled before it sleeps does not fall asleep.
SleepingTask MainActor::startTask(std::chrono::milliseconds sleep, std::function<void()> body) {
    auto state = std::make_shared<SleepingTask::State>();
    state->work = std::move(body);
    startTask([state, sleep] {
        sim::Session& session = sim::Session::current();
        session.journal().record("Task.sleep(for: ", sleep.count(), " ms, clock: .continuous)");
        state->hasFallenAsleep = true;
        const auto duration = state->isCancelled ? sim::Duration::zero() : sim::Duration(sleep);
        session.enqueueOnMainQueue([state] { state->wake(); }, duration);
    });
    return SleepingTask(state);
}

void SleepingTask::cancel() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[Task cancel]");
    state_->isCancelled = true;
    if (state_->hasFallenAsleep) {
        session.enqueueOnMainQueue([state = state_] { state->wake(); });
    }
}

bool MainActor::isCurrent() {
    sim::Session& session = sim::Session::current();
    session.journal().record("+[NSThread isMainThread]");
    return session.isOnMainThread();
}

} // namespace kestrune
