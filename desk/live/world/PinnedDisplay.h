// The display that keeps the Dock, worked out from what is stored and connected.
#pragma once

#include "sim/session/Session.h"

namespace kestrune::desk {

// The stored choice while it is connected, else the main display, else the first; null without any display.
// The guard is not asked: it knows none before it first runs, and the desk shows the choice all the same.
const sim::Display* pinnedDisplay(sim::Session& session);

} // namespace kestrune::desk
