#include "platform/MainActor.h"

#include "mac/Vocabulary.h"
#include "mac/c/Dispatch.h"
#include "mac/objc/Pool.h"

#include <memory>
#include <utility>

namespace kestrune {

namespace {

using Task = std::function<void()>;

void runTask(void* context) noexcept {
    const mac::Pool pool;
    const std::unique_ptr<Task> task(static_cast<Task*>(context));
    (*task)();
}

} // namespace

void MainActor::startTask(std::function<void()> body) {
    dispatch_async_f(&_dispatch_main_q, std::make_unique<Task>(std::move(body)).release(), runTask);
}

bool MainActor::isCurrent() { return mac::ns_thread::isMainThread(mac::ns_thread::type.object()) != 0; }

} // namespace kestrune
