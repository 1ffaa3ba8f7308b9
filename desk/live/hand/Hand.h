// The hand at the mouse, which moves in real time while the simulated system may hold its events up.
#pragma once

#include "base/Geometry.h"
#include "desk/live/world/LiveDesk.h"

#include <optional>
#include <utility>

namespace kestrune::desk {

// An event that the system holds up puts the session's clock ahead of the real one. Until that has caught up,
// the pointer stands still, as it would on the Mac; of what the hand does meanwhile only the last place
// counts.
class Hand {
public:
    // `desk` must outlive the hand.
    explicit Hand(LiveDesk& desk) : desk_(desk) {}

    // `target` is in global display coordinates; `elapsed` is the real time since the desk was opened.
    void moveTo(Point target, EventType type, sim::Duration elapsed) {
        letTimePass(elapsed);
        waiting_ = {target, type};
        letTimePass(elapsed);
    }

    // Lets the session catch up with the real time.
    void letTimePass(sim::Duration elapsed) {
        if (elapsed >= desk_.now()) {
            desk_.advance(elapsed - desk_.now());
            if (const auto movement = std::exchange(waiting_, std::nullopt)) {
                desk_.movePointerTowards(movement->first, movement->second);
            }
        }
    }

private:
    LiveDesk& desk_;
    std::optional<std::pair<Point, EventType>> waiting_;
};

} // namespace kestrune::desk
