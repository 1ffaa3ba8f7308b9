#include "platform/MainActor.h"

#include "mac/c/Dispatch.h"
#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"

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

} // namespace

void MainActor::startTask(std::function<void()> body) {
    dispatch_async_f(&_dispatch_main_q, contextOf(std::move(body)), runTask);
}

// Dispatch counts the time during which the computer is awake. It has no clock for the rest that does not
// jump when somebody sets the date; so a sleep during which the computer sleeps too lasts longer by that.
void MainActor::startTask(std::chrono::milliseconds sleep, std::function<void()> body) {
    const std::chrono::nanoseconds delay = sleep;
    startTask([delay, body = std::move(body)] {
        dispatch_after_f(dispatch_time(Now, delay.count()), &_dispatch_main_q, contextOf(body), runTask);
    });
}

// Yes where nobody can tell.
bool MainActor::isCurrent() {
    const auto& isMainThread = mac::foundation.thread.isMainThread;
    return isMainThread() != 0 || !isMainThread.isThere();
}

} // namespace kestrune
