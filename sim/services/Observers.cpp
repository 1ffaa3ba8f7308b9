#include "sim/services/Observers.h"

#include "sim/services/NotificationState.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

std::shared_ptr<NotificationObserver::State> Observers::add(std::string_view name,
                                                            std::function<void(const Notification&)> block) {
    auto observer = std::make_shared<NotificationObserver::State>();
    observer->name = name;
    observer->block = std::move(block);
    observers_.push_back(observer);
    return observer;
}

void Observers::remove(NotificationObserver::State& observer) {
    observer.isObserving = false;
    std::erase_if(observers_, [&observer](const auto& other) { return other.get() == &observer; });
}

void Observers::post(const NotificationName& name, const std::shared_ptr<Window::State>& window) const {
    const Notification::State notification{window};
    // A copy, because a block may add and remove observers or end the process; and it keeps each block alive
    // while it runs.
    for (const auto& observer : std::vector(observers_)) {
        if (observer->name == name.name() && observer->isObserving) {
            observer->block(Notification(notification));
        }
    }
}

std::size_t Observers::count(const NotificationName& name) const {
    return static_cast<std::size_t>(
        std::count_if(observers_.begin(), observers_.end(),
                      [&name](const auto& observer) { return observer->name == name.name(); }));
}

void Observers::clear() {
    for (const auto& observer : std::exchange(observers_, {})) {
        observer->isObserving = false;
    }
}

} // namespace kestrune::sim
