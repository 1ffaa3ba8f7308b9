#include "platform/MainActor.h"

#include "sim/Session.h"

#include <utility>

namespace kestrune {

void MainActor::startTask(std::function<void()> body) {
    sim::Session& session = sim::Session::current();
    session.journal().record("Task on the main actor");
    session.enqueueOnMainQueue(std::move(body));
}

bool MainActor::isCurrent() {
    sim::Session& session = sim::Session::current();
    session.journal().record("+[NSThread isMainThread]");
    return session.isOnMainThread();
}

} // namespace kestrune
