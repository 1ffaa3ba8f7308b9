// The status items in the menu bar.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <cstddef>

namespace kestrune::gnustep {

void installStatusItems();

// Those that are alive; from the first to the latest by their place.
std::size_t statusItemCount();
id buttonOfStatusItem(std::size_t index);

// Nil when it has none.
id menuOfStatusItem(std::size_t index);

} // namespace kestrune::gnustep
