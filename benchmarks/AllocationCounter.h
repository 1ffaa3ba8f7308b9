// Counts the heap allocations of the program that links it.
#pragma once

#include <cstddef>

namespace kestrune::benchmarks {

// How often `operator new`, in any of its forms, was called since the program started, on all threads.
std::size_t allocationCount();

// How many of them have not been given back.
std::size_t liveAllocationCount();

} // namespace kestrune::benchmarks
