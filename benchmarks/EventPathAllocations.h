// Heap allocations on the event path.
#pragma once

#include "benchmarks/EventPathCase.h"

#include <cstddef>

namespace kestrune::benchmarks {

// How often `handler` allocates while it is handed that many events, once it has seen some.
std::size_t allocationsOf(EventPathCase& eventPath, Handler handler, std::size_t events);

// Whether any handler allocates in any situation; says which on standard error.
bool eventPathAllocates();

} // namespace kestrune::benchmarks
