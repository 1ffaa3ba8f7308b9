// What a timer is in the simulation.
#pragma once

#include "platform/Timer.h"
#include "sim/hardware/VirtualClock.h"
#include "sim/services/LiveObject.h"

#include <functional>
#include <memory>

namespace kestrune {

struct Timer::State {
    sim::Duration interval{0};
    sim::Duration due{0};
    bool repeats = false;
    bool isValid = true;
    std::shared_ptr<std::function<void(Timer&)>> block;
    sim::LiveObject object{"timer", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
