// What a CGEventRef is in the simulation.
#pragma once

#include "platform/Event.h"

namespace kestrune::sim {

struct PointerEvent final : Event {
    PointerEvent(EventType eventType, Point eventLocation) : type(eventType), location(eventLocation) {}

    EventType type;
    Point location; // global display coordinates
};

} // namespace kestrune::sim
