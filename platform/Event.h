// One event of the session's event stream.
//
// Source: CoreGraphics, CGEvent.h, CGEventTypes.h; raw values of the types from IOKit's IOLLEvent.h.
#pragma once

#include "base/Geometry.h"

#include <cstdint>

namespace kestrune {

// CGEventType. Only the types that the application's masks name, and the two that a tap receives whatever its
// mask.
enum class EventType : std::uint32_t {
    mouseMoved = 5,
    leftMouseDragged = 6,
    rightMouseDragged = 7,
    otherMouseDragged = 27,
    tapDisabledByTimeout = 0xFFFFFFFE,
    tapDisabledByUserInput = 0xFFFFFFFF,
};

// CGEventMask: bit n stands for the event type with raw value n.
using EventMask = std::uint64_t;

// CGEventMaskBit(type), for the types of events; those of a disabled tap have no bit.
constexpr EventMask eventMaskBit(EventType type) { return EventMask{1} << static_cast<std::uint32_t>(type); }

// A CGEventRef: the application never makes or owns one. It receives `Event*`, which is the platform's own
// pointer, borrowed for the length of the tap callback that it came with.
class Event {
public:
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    // CGEventGetLocation, in global display coordinates.
    Point location() const;

    // CGEventSetLocation, in global display coordinates. Everything downstream of the tap sees the new
    // location; the event's movement deltas stay as the hardware reported them.
    void setLocation(Point location);

protected:
    Event() = default;
    ~Event() = default;
};

} // namespace kestrune
