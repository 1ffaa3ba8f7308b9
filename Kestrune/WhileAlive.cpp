#include "Kestrune/WhileAlive.h"

#include <utility>

namespace kestrune {

std::function<void()> whileAlive(std::weak_ptr<const void> owner, std::function<void()> work) {
    return [owner = std::move(owner), work = std::move(work)] {
        const std::shared_ptr<const void> alive = owner.lock();
        if (alive) {
            work();
        }
    };
}

} // namespace kestrune
