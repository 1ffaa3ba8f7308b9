#include "platform/NotificationCenter.h"

#include "mac/Handles.h"
#include "mac/objc/Block.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune {

struct Notification::State {
    id notification; // borrowed
};

struct NotificationObserver::State {
    mac::Retained token;
};

namespace {

id theDefaultCenter() { return mac::foundation.notificationCenter.defaultCenter(); }

} // namespace

std::optional<Window> Notification::objectAsWindow() const {
    const mac::Pool pool;
    const id object = mac::foundation.notification.object(state_.notification);
    const bool isWindow = mac::foundation.object.isKindOfClass(object, mac::appKit.window.find()) != 0;
    return isWindow ? std::optional(Window(
                          std::make_shared<Window::State>(Window::State{mac::Retained::retaining(object)})))
                    : std::nullopt;
}

// There is one of each; they are asked for with each call.
OperationQueue OperationQueue::mainQueue() { return {}; }

NotificationCenter NotificationCenter::defaultCenter() { return {}; }

NotificationObserver NotificationCenter::addObserver(const NotificationName& name, const OperationQueue&,
                                                     std::function<void(const Notification&)> block) {
    const mac::Pool pool;
    const mac::Block observed([block = std::move(block)](id notification) {
        const Notification::State state{notification};
        block(Notification(state));
    });
    const id queue = mac::foundation.operationQueue.mainQueue();
    const id token = mac::foundation.notificationCenter.addObserver(
        theDefaultCenter(), mac::nsString(name.name()).get(), nullptr, queue, observed.get());
    return NotificationObserver(std::make_shared<NotificationObserver::State>(
        NotificationObserver::State{mac::Retained::retaining(token)}));
}

void NotificationCenter::removeObserver(const NotificationObserver& observer) {
    const mac::Pool pool;
    mac::foundation.notificationCenter.removeObserver(theDefaultCenter(), observer.state()->token.get());
}

} // namespace kestrune
