// Models that tell who looks at them before they change.
//
// As SwiftUI's ObservableObject with published properties. One thread, the main one.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace kestrune::ui {

// Ends the observation with its life.
class Observation {
public:
    struct Registration;

    Observation() = default;
    explicit Observation(std::shared_ptr<Registration> registration)
        : registration_(std::move(registration)) {}

private:
    std::shared_ptr<Registration> registration_;
};

class ObservableObject {
public:
    ObservableObject();
    virtual ~ObservableObject();

    ObservableObject(const ObservableObject&) = delete;
    ObservableObject& operator=(const ObservableObject&) = delete;

    // `objectWillChange` is called before each change of a published property, also when the new value
    // equals the old one. Observers are called in the order of their registration; one that is added during
    // a notification is called from the next one on, one that has ended is not called any more.
    [[nodiscard]] Observation observe(std::function<void()> objectWillChange);

    // Tells every observer.
    void willChange();

private:
    struct Observers;
    std::shared_ptr<Observers> observers_;
};

// A property whose assignment tells the observers of its model first.
template <typename Value>
class Published {
public:
    // `model` owns the property.
    Published(ObservableObject& model, Value initial) : model_(model), value_(std::move(initial)) {}

    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    Published& operator=(Value value) {
        model_.willChange();
        value_ = std::move(value);
        return *this;
    }

    const Value& value() const { return value_; }
    operator const Value&() const { return value_; } // NOLINT(google-explicit-constructor)

private:
    ObservableObject& model_;
    Value value_;
};

} // namespace kestrune::ui
