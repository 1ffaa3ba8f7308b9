#include "ui/ObservableObject.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace kestrune::ui {

// The model knows registrations weakly. What a registration calls may outlive it while it is being called.
struct Observation::Registration {
    std::shared_ptr<const std::function<void()>> objectWillChange;
};

struct ObservableObject::Observers {
    std::vector<std::weak_ptr<Observation::Registration>> registrations;
    int notifications = 0; // that are under way, one inside the other

    // The callbacks of a notification that is under way are counted by their places.
    void removeEnded() {
        if (notifications == 0) {
            std::erase_if(registrations, [](const auto& registration) { return registration.expired(); });
        }
    }
};

ObservableObject::ObservableObject() : observers_(std::make_shared<Observers>()) {}

ObservableObject::~ObservableObject() = default;

Observation ObservableObject::observe(std::function<void()> objectWillChange) {
    observers_->removeEnded();
    auto registration = std::make_shared<Observation::Registration>();
    registration->objectWillChange =
        std::make_shared<const std::function<void()>>(std::move(objectWillChange));
    observers_->registrations.push_back(registration);
    return Observation(std::move(registration));
}

void ObservableObject::willChange() {
    // An observer may let go of the model.
    const std::shared_ptr<Observers> observers = observers_;
    const std::size_t count = observers->registrations.size();
    ++observers->notifications;
    for (std::size_t index = 0; index < count; ++index) {
        std::shared_ptr<const std::function<void()>> objectWillChange;
        if (const auto registration = observers->registrations[index].lock()) {
            objectWillChange = registration->objectWillChange;
        }
        if (objectWillChange) {
            (*objectWillChange)();
        }
    }
    --observers->notifications;
    observers->removeEnded();
}

} // namespace kestrune::ui
