// What applications beside the simulated one have in common, which the desk plays.
#pragma once

#include "desk/live/world/SystemViews.h"
#include "sim/session/Session.h"

namespace kestrune::desk {

// Another application is the active one from now on.
void comeToTheFront(sim::Session& session);

// Another application's last window is closed: Kestrune is active again if it has a window and a place in the
// Dock.
void leaveTheFront(sim::Session& session);

// Kestrune, as other applications list it.
ListedApplication kestruneAsListed(const sim::Session& session);

} // namespace kestrune::desk
