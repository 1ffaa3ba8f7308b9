#include "platform/MainActor.h"

#include "mac/Vocabulary.h"
#include "mac/c/Dispatch.h"
#include "mac/objc/Pool.h"

#include <memory>
#include <utility>

namespace kestrune {

namespace {

using Task = std::function<void()>;

constexpr std::uint64_t Now = 0; // DISPATCH_TIME_NOW

void runTask(void* context) noexcept {
    const mac::Pool pool;
    const std::unique_ptr<Task> task(static_cast<Task*>(context));
    (*task)();
}

void* contextOf(Task task) { return std::make_unique<Task>(std::move(task)).release(); }

// Dispatch counts the time during which the computer is awake. It has no clock for the rest that does not
// jump when somebody sets the date; so a sleep during which the computer sleeps too lasts longer by that.
void runAfter(std::chrono::nanoseconds delay, Task task) {
    dispatch_after_f(dispatch_time(Now, delay.count()), &_dispatch_main_q, contextOf(std::move(task)),
                     runTask);
}

} // namespace

struct SleepingTask::State {
    Task work; // empty once it has begun
    bool isAsleep = false;
    bool isCancelled = false;

    void wake() {
        isAsleep = false;
        if (const Task begun = std::exchange(work, nullptr)) {
            begun();
        }
    }
};

void MainActor::startTask(std::function<void()> body) {
    dispatch_async_f(&_dispatch_main_q, contextOf(std::move(body)), runTask);
}

// A task that is cancelled before it sleeps does not fall asleep.
SleepingTask MainActor::startTask(std::chrono::milliseconds sleep, std::function<void()> body) {
    auto state = std::make_shared<SleepingTask::State>();
    state->work = std::move(body);
    startTask([state, sleep] {
        if (state->isCancelled) {
            state->wake();
            return;
        }
        state->isAsleep = true;
        runAfter(sleep, [state] { state->wake(); });
    });
    return SleepingTask(state);
}

void SleepingTask::cancel() {
    state_->isCancelled = true;
    if (state_->isAsleep) {
        MainActor::startTask([state = state_] { state->wake(); });
    }
}

// Yes where nobody can tell.
bool MainActor::isCurrent() {
    const auto& isMainThread = mac::foundation.thread.isMainThread;
    return isMainThread() != 0 || !isMainThread.isThere();
}

} // namespace kestrune
