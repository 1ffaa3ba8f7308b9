// The session's event stream and its taps.
#pragma once

#include "platform/Event.h"
#include "platform/EventTap.h"
#include "tests/contract/World.h"

#include <optional>

namespace kestrune::gnustep {

// A pointer event in the session.
struct PostedEvent : Event {
    PostedEvent(EventType kind, Point place) : type(kind), location(place) {}

    EventType type;
    Point location;
};

// What the application gave to the session for the tap that sees events first.
struct TapListener {
    EventTapCallback callback = nullptr;
    void* userInfo = nullptr;
};

// Absent when there is no tap.
std::optional<TapListener> firstTapListener();

// An event enters the session. Absent when a tap deleted it.
std::optional<contract::DeliveredEvent> postEvent(EventType type, Point location);

// The system switches the taps off that are enabled and on the run loop, and tells them why.
void switchTapsOff(EventType reason);

} // namespace kestrune::gnustep
