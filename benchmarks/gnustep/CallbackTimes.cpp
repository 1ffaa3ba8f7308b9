#include "benchmarks/gnustep/CallbackTimes.h"

#include "benchmarks/AllocationCounter.h"
#include "tests/gnustep/harness/PrivateHome.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <string_view>

namespace kestrune::benchmarks {

namespace {

using gnustep::PostedEvent;
using gnustep::TapListener;

[[gnu::noinline]] void feed(const TapListener& listener, Point location, int events) {
    for (int index = 0; index < events; ++index) {
        handled(listener, location);
    }
}

double nanosecondsFor(const TapListener& listener, Point location, int events) {
    const auto start = std::chrono::steady_clock::now();
    feed(listener, location, events);
    const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
    return spent.count() / events;
}

} // namespace

std::vector<double> fastestTimes(std::span<const TapListener> callbacks, Point location,
                                 const Effort& effort) {
    std::vector<double> times(callbacks.size(), std::numeric_limits<double>::infinity());
    for (int batch = 0; batch < effort.batches; ++batch) {
        for (std::size_t index = 0; index < callbacks.size(); ++index) {
            times[index] = std::min(times[index], nanosecondsFor(callbacks[index], location, effort.events));
        }
    }
    return times;
}

Point handled(const TapListener& callback, Point location) {
    PostedEvent event(EventType::mouseMoved, location);
    callback.callback(nullptr, EventType::mouseMoved, &event, callback.userInfo);
    return event.location;
}

bool allocates(const TapListener& callback, Point location) {
    feed(callback, location, 2);
    const std::size_t before = allocationCount();
    feed(callback, location, 1000);
    return allocationCount() != before;
}

int runMeasurement(int count, char** arguments, bool (*measureAll)(bool isQuick)) {
    const bool isQuick = count == 2 && std::string_view(arguments[1]) == "--quick";
    if (count > 1 && !isQuick) {
        std::fprintf(stderr, "usage: %s [--quick]\n", arguments[0]);
        return 2;
    }
    gnustep::enterPrivateHome();
    return measureAll(isQuick) ? 0 : 1;
}

} // namespace kestrune::benchmarks
