// What a run-loop source is in the simulation.
#pragma once

#include "platform/RunLoop.h"
#include "sim/services/LiveObject.h"
#include "sim/services/Tap.h"

#include <memory>
#include <utility>

namespace kestrune {

struct RunLoopSource::State {
    State(std::shared_ptr<void> retainedPort, std::shared_ptr<sim::Tap> servedTap)
        : port(std::move(retainedPort)), tap(std::move(servedTap)) {}

    // The tap's port, which a source retains.
    std::shared_ptr<void> port;
    std::shared_ptr<sim::Tap> tap;
    sim::LiveObject object{"source"};
};

} // namespace kestrune
