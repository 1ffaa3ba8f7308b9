// The status items that the process has made.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <cstddef>

namespace kestrune::native {

// From now on each is known, and kept: nobody outside of the process can ask for them.
void watchStatusItems();

// By its place from the first to the latest; nil when there is none.
id statusItem(std::size_t index);

} // namespace kestrune::native
