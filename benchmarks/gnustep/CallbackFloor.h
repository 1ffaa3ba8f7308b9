// The least that the callback must do for one event on this platform: the same messages in the same order,
// sent by hand, with the decision as one function over plain numbers.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/EventTap.h"

namespace kestrune::benchmarks {

struct CallbackFloor {
    mac::Retained defaults;
    mac::Retained isEnabledKey;
    mac::Retained blockMarginKey;
    // Two displays beside each other, of one size; the left one at the origin.
    double width = 0;
    double height = 0;
    bool isLeftPinned = true;
    // The pool that every entry from the platform needs; without it the floor shows what that costs.
    bool hasPool = true;
};

// `userInfo` is a CallbackFloor.
Event* floorCallback(EventTapProxy* proxy, EventType type, Event* event, void* userInfo) noexcept;

} // namespace kestrune::benchmarks
