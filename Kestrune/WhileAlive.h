// Callbacks that hold their owner weakly.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace kestrune {

// Calls the operation, or does nothing once the owner is gone. The owner lives until the operation returns.
template <typename Owner>
std::function<void()> whileAlive(std::weak_ptr<Owner> owner, void (Owner::*operation)()) {
    return [owner = std::move(owner), operation] {
        if (const auto alive = owner.lock()) {
            (alive.get()->*operation)();
        }
    };
}

} // namespace kestrune
