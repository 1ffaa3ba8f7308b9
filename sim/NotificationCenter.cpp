#include "platform/NotificationCenter.h"

#include "sim/Session.h"

#include <utility>

namespace kestrune {

// The center keeps the observation; nobody asks the token for anything.
struct NotificationObserver::State {};

OperationQueue OperationQueue::mainQueue() {
    sim::Session::current().journal().record("NSOperationQueue.mainQueue");
    return {};
}

NotificationCenter NotificationCenter::defaultCenter() {
    sim::Session::current().journal().record("NSNotificationCenter.defaultCenter");
    return {};
}

NotificationObserver NotificationCenter::addObserver(const NotificationName& name, const OperationQueue&,
                                                     std::function<void()> block) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] ",
                             name.name(), ", nil, main queue");
    session.observers().add(name.name(), std::move(block));
    return NotificationObserver(std::make_shared<NotificationObserver::State>());
}

} // namespace kestrune
