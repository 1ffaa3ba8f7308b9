// What the guard remembers of the displays, beside what it must remember.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "tests/random/guard/Oracle.h"

#include <optional>
#include <vector>

namespace kestrune::simulate {

// Whether the guard's list holds exactly these displays, to the last bit of their frames.
bool knowsDisplays(const DockGuardController& guard, const std::vector<KnownDisplay>& displays);

// Whether the guard's pinned display is exactly that one, or absent.
bool pins(const DockGuardController& guard, const std::optional<KnownDisplay>& display);

} // namespace kestrune::simulate
