#include "platform/MainActor.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/MainThread.h"

#include <utility>

namespace kestrune {

void MainActor::startTask(std::function<void()> body) {
    sim::recordCall("Task on the main actor");
    sim::current<sim::MainThread>().enqueue(std::move(body));
}

void MainActor::startTask(std::chrono::milliseconds sleep, std::function<void()> body) {
    startTask([sleep, body = std::move(body)] {
        sim::recordCall("Task.sleep(for: ", sleep.count(), " ms, clock: .continuous)");
        sim::current<sim::MainThread>().enqueue(body, sleep);
    });
}

bool MainActor::isCurrent() {
    sim::recordCall("+[NSThread isMainThread]");
    return sim::current<sim::MainThread>().isCurrent();
}

} // namespace kestrune
