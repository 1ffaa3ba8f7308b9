#include "benchmarks/EventPathAllocations.h"

#include "benchmarks/AllocationCounter.h"

#include <cstdio>
#include <string>

namespace kestrune::benchmarks {

std::size_t allocationsOf(EventPathCase& eventPath, Handler handler, std::size_t events) {
    eventPath.feed(handler, 2);
    const std::size_t before = allocationCount();
    eventPath.feed(handler, events);
    return allocationCount() - before;
}

bool eventPathAllocates() {
    bool allocates = false;
    for (const EventPathRow& row : eventPathRows()) {
        EventPathCase eventPath(row);
        for (const Handler handler : AllHandlers) {
            if (allocationsOf(eventPath, handler, 100) > 0) {
                std::fprintf(stderr, "FAIL: %s: %s allocates\n", row.name().c_str(),
                             std::string(nameOf(handler)).c_str());
                allocates = true;
            }
        }
    }
    return allocates;
}

} // namespace kestrune::benchmarks
