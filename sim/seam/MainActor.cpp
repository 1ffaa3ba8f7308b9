#include "platform/MainActor.h"

#include "sim/session/Session.h"

#include <utility>

namespace kestrune {

void MainActor::startTask(std::function<void()> body) {
    sim::Session& session = sim::Session::current();
    session.journal().record("Task on the main actor");
    session.enqueueOnMainQueue(std::move(body));
}

void MainActor::startTask(std::chrono::milliseconds sleep, std::function<void()> body) {
    startTask([sleep, body = std::move(body)] {
        sim::Session& session = sim::Session::current();
        session.journal().record("Task.sleep(for: ", sleep.count(), " ms, clock: .continuous)");
        session.enqueueOnMainQueue(body, sleep);
    });
}

bool MainActor::isCurrent() {
    sim::Session& session = sim::Session::current();
    session.journal().record("+[NSThread isMainThread]");
    return session.isOnMainThread();
}

} // namespace kestrune
