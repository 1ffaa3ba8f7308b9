#include "platform/Event.h"

#include "mac/c/Quartz.h"

namespace kestrune {

Point Event::location() const {
    const CGPoint location = CGEventGetLocation(this);
    return {location.x, location.y};
}

void Event::setLocation(Point location) { CGEventSetLocation(this, {location.x, location.y}); }

} // namespace kestrune
