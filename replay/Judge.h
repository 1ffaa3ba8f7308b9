// Whether the guard did right, decided without asking it.
#pragma once

#include "replay/GuardRule.h"
#include "sim/session/Session.h"

namespace kestrune::replay {

// True when the event was delivered where a held pointer may not be, or changed where nothing may change.
bool violatesTheRule(const JudgedDesk& desk, const sim::Delivery& delivery);

} // namespace kestrune::replay
