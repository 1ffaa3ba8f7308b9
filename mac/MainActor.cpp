#include "platform/MainActor.h"

#include "mac/Vocabulary.h"
#include "mac/objc/Block.h"
#include "mac/objc/Pool.h"

#include <utility>

namespace kestrune {

// The main queue runs its operations on the main thread, in order, after what runs there now.
void MainActor::startTask(std::function<void()> body) {
    const mac::Pool pool;
    const mac::Block task([body = std::move(body)](id) { body(); });
    const id queue = mac::ns_operation_queue::mainQueue(mac::ns_operation_queue::type.object());
    mac::ns_operation_queue::addOperationWithBlock(queue, task.get());
}

bool MainActor::isCurrent() { return mac::ns_thread::isMainThread(mac::ns_thread::type.object()) != 0; }

} // namespace kestrune
