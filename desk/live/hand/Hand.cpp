#include "desk/live/hand/Hand.h"

#include <utility>

namespace kestrune::desk {

void Hand::moveTo(Point target, EventType type, sim::Duration elapsed) {
    letTimePass(elapsed);
    waiting_ = Movement{target, type};
    letTimePass(elapsed);
}

void Hand::letTimePass(sim::Duration elapsed) {
    if (elapsed < desk_.now()) {
        return;
    }
    desk_.advance(elapsed - desk_.now());
    if (const auto movement = std::exchange(waiting_, std::nullopt)) {
        desk_.movePointerTowards(movement->target, movement->type);
    }
}

} // namespace kestrune::desk
