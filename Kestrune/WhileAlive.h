// Callbacks that hold their owner weakly.
#pragma once

#include <functional>
#include <memory>

namespace kestrune {

// Does the work, or nothing once the owner is gone. The owner lives until the work is done, so that the work
// may use it without holding it.
std::function<void()> whileAlive(std::weak_ptr<const void> owner, std::function<void()> work);

} // namespace kestrune
