// The session's event stream and its taps.
#pragma once

#include "platform/Event.h"
#include "platform/EventTap.h"

#include <optional>

namespace kestrune::gnustep {

// A pointer event in the session.
struct PostedEvent : Event {
    explicit PostedEvent(Point place) : location(place) {}

    Point location;
};

// What the application gave to the session for the tap that sees events first.
struct TapListener {
    EventTapCallback callback = nullptr;
    void* userInfo = nullptr;
};

// Absent when there is no tap.
std::optional<TapListener> firstTapListener();

// An event enters the session. Gives where it is delivered behind all taps, in global display coordinates;
// absent when a tap deleted it.
std::optional<Point> postEvent(EventType type, Point location);

// The system switches the taps off that are enabled and on the run loop, and tells them why.
void switchTapsOff(EventType reason);

} // namespace kestrune::gnustep
