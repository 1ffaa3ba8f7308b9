// The platform's object that stands for one of the application's.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/Object.h"
#include "platform/WindowController.h"

#include <memory>

namespace kestrune {

// An instance of a run-time class that forwards its methods. Once the application's object is gone they do
// nothing, whoever still holds this one.
struct Object::Counterpart {
    explicit Counterpart(const Object& represented);
    Counterpart(const WindowController& represented, const Window& window);
    ~Counterpart();

    Counterpart(const Counterpart&) = delete;
    Counterpart& operator=(const Counterpart&) = delete;

    // The instance to hand to the platform; nil when the object is gone and before `Object::init`.
    static id of(const std::weak_ptr<Object>& reference);

    mac::Retained instance;

    // Since the object was handed to the platform.
    std::weak_ptr<Object> object;
};

} // namespace kestrune
