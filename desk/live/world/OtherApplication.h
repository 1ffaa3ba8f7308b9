// Applications beside the simulated one, which the desk plays.
#pragma once

#include "sim/session/Session.h"

namespace kestrune::desk {

// Another application is the active one from now on.
void comeToTheFront(sim::Session& session);

// Another application's last window is closed: Kestrune is active again if it has a window and a place in the
// Dock.
void leaveTheFront(sim::Session& session);

} // namespace kestrune::desk
