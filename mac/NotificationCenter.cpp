#include "platform/NotificationCenter.h"

#include "mac/Vocabulary.h"
#include "mac/objc/Block.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/objc/Text.h"

#include <utility>

namespace kestrune {

struct NotificationObserver::State {
    mac::Retained token;
};

// There is one of each; they are asked for with each call.
OperationQueue OperationQueue::mainQueue() { return {}; }

NotificationCenter NotificationCenter::defaultCenter() { return {}; }

NotificationObserver NotificationCenter::addObserver(const NotificationName& name, const OperationQueue&,
                                                     std::function<void()> block) {
    const mac::Pool pool;
    const mac::Block observed([block = std::move(block)](id) { block(); });
    const id center = mac::ns_notification_center::defaultCenter(mac::ns_notification_center::type.object());
    const id queue = mac::ns_operation_queue::mainQueue(mac::ns_operation_queue::type.object());
    const id token = mac::ns_notification_center::addObserver(center, mac::nsString(name.name()).get(),
                                                              nullptr, queue, observed.get());
    return NotificationObserver(std::make_shared<NotificationObserver::State>(
        NotificationObserver::State{mac::Retained::retaining(token)}));
}

} // namespace kestrune
