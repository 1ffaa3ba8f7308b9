// The observers at the application's notification center.
#pragma once

#include "platform/NotificationCenter.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace kestrune::sim {

class Observers {
public:
    std::shared_ptr<NotificationObserver::State> add(std::string_view name,
                                                     std::function<void(const Notification&)> block);
    void remove(NotificationObserver::State& observer);

    // Runs the blocks that wait for a notification of that name, in the order of their registration. They are
    // all on the main queue, where the system posts what it posts; so each runs at once. `window` is the
    // object of the notification, unless it has another one.
    void post(const NotificationName& name, const std::shared_ptr<Window::State>& window = nullptr) const;

    std::size_t count() const { return observers_.size(); }
    std::size_t count(const NotificationName& name) const;

    // The application's process has ended.
    void clear();

private:
    std::vector<std::shared_ptr<NotificationObserver::State>> observers_;
};

} // namespace kestrune::sim
