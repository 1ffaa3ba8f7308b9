#include "platform/Event.h"

#include "sim/session/PointerEvent.h"
#include "sim/session/Session.h"

namespace kestrune {

Point Event::location() const {
    sim::Session::current().journal().record("CGEventGetLocation(event)");
    return static_cast<const sim::PointerEvent*>(this)->location;
}

void Event::setLocation(Point location) {
    sim::Session::current().journal().record("CGEventSetLocation(event, ", location, ")");
    static_cast<sim::PointerEvent*>(this)->location = location;
}

} // namespace kestrune
