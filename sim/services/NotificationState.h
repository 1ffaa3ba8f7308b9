// What a notification and its observer are in the simulation.
#pragma once

#include "platform/NotificationCenter.h"

#include <functional>
#include <memory>
#include <string>

namespace kestrune {

struct Notification::State {
    std::shared_ptr<Window::State> window; // null when another object has sent it
};

struct NotificationObserver::State {
    std::string name;
    std::function<void(const Notification&)> block;
    bool isObserving = true;
};

} // namespace kestrune
