// What the platform has of an object of the application's: only that it is there.
#pragma once

#include "platform/Object.h"
#include "sim/services/LiveObject.h"

namespace kestrune {

struct Object::Counterpart {
    sim::LiveObject object{"object", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
