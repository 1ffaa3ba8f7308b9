// One event tap of the session.
#pragma once

#include "platform/EventTap.h"

#include <optional>

namespace kestrune::sim {

struct Tap {
    EventTapLocation location;
    EventTapPlacement placement;
    EventTapOptions options;
    EventMask mask;
    EventTapCallback callback;
    void* userInfo;

    bool enabled = true;

    // Whether a run loop serves the tap; without one it delivers nothing.
    bool scheduled = false;

    // Why the system switched the tap off, until the application was told.
    std::optional<EventType> pendingNotice = std::nullopt;

    bool receives(EventType type) const { return enabled && scheduled && (mask & eventMaskBit(type)) != 0; }
};

} // namespace kestrune::sim
