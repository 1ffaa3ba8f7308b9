// What every function of the seam does first.
#pragma once

#include "sim/services/Current.h"
#include "sim/services/Journal.h"

namespace kestrune::sim {

// One line of the session's journal, made of the parts.
template <typename... Parts>
void recordCall(const Parts&... parts) {
    current<Journal>().record(parts...);
}

} // namespace kestrune::sim
