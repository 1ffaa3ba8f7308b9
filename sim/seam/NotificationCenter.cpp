#include "platform/NotificationCenter.h"

#include "sim/seam/NotificationState.h"
#include "sim/session/Session.h"

#include <utility>

namespace kestrune {

std::optional<Window> Notification::objectAsWindow() const {
    sim::Session::current().journal().record("-[NSNotification object]");
    return state_.window ? std::optional(Window(state_.window)) : std::nullopt;
}

OperationQueue OperationQueue::mainQueue() {
    sim::Session::current().journal().record("NSOperationQueue.mainQueue");
    return {};
}

NotificationCenter NotificationCenter::defaultCenter() {
    sim::Session::current().journal().record("NSNotificationCenter.defaultCenter");
    return {};
}

NotificationObserver NotificationCenter::addObserver(const NotificationName& name, const OperationQueue&,
                                                     std::function<void(const Notification&)> block) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] ",
                             name.name(), ", nil, main queue");
    return NotificationObserver(session.observers().add(name.name(), std::move(block)));
}

void NotificationCenter::removeObserver(const NotificationObserver& observer) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSNotificationCenter removeObserver:]");
    session.observers().remove(*observer.state());
}

} // namespace kestrune
