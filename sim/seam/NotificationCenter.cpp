#include "platform/NotificationCenter.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/NotificationState.h"
#include "sim/services/Observers.h"

#include <utility>

namespace kestrune {

std::optional<Window> Notification::objectAsWindow() const {
    sim::recordCall("-[NSNotification object]");
    return state_.window ? std::optional(Window(state_.window)) : std::nullopt;
}

OperationQueue OperationQueue::mainQueue() {
    sim::recordCall("NSOperationQueue.mainQueue");
    return {};
}

NotificationCenter NotificationCenter::defaultCenter() {
    sim::recordCall("NSNotificationCenter.defaultCenter");
    return {};
}

NotificationObserver NotificationCenter::addObserver(const NotificationName& name, const OperationQueue&,
                                                     std::function<void(const Notification&)> block) {
    sim::recordCall("-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] ", name.name(),
                    ", nil, main queue");
    return NotificationObserver(sim::current<sim::Observers>().add(name.name(), std::move(block)));
}

void NotificationCenter::removeObserver(const NotificationObserver& observer) {
    sim::recordCall("-[NSNotificationCenter removeObserver:]");
    sim::current<sim::Observers>().remove(*observer.state());
}

} // namespace kestrune
