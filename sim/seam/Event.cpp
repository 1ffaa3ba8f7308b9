#include "platform/Event.h"

#include "sim/hardware/PointerEvent.h"
#include "sim/seam/RecordCall.h"

namespace kestrune {

Point Event::location() const {
    sim::recordCall("CGEventGetLocation(event)");
    return static_cast<const sim::PointerEvent*>(this)->location;
}

void Event::setLocation(Point location) {
    sim::recordCall("CGEventSetLocation(event, ", location, ")");
    static_cast<sim::PointerEvent*>(this)->location = location;
}

} // namespace kestrune
