// What a tap's callback does with an event, and how long it takes.
#pragma once

#include "tests/gnustep/standins/system/EventTaps.h"

#include <span>
#include <vector>

namespace kestrune::benchmarks {

// Interleaved in short batches, of which the quickest counts, so that all meet the same machine.
struct Effort {
    int batches;
    int events; // in a batch
};
inline constexpr Effort Full{400, 500};
inline constexpr Effort Quick{3, 20};

// Nanoseconds for an event at that place, for each of the callbacks.
std::vector<double> fastestTimes(std::span<const gnustep::TapListener> callbacks, Point location,
                                 const Effort& effort);

// Where the callback leaves an event.
Point handled(const gnustep::TapListener& callback, Point location);

// Whether events go on making it take memory, after the first two.
bool allocates(const gnustep::TapListener& callback, Point location);

// The rest of a program that takes "--quick" or nothing, with a home of its own: gives its exit status, 0
// when `measureAll` finds everything as it should be and 1 when not.
int runMeasurement(int count, char** arguments, bool (*measureAll)(bool isQuick));

} // namespace kestrune::benchmarks
