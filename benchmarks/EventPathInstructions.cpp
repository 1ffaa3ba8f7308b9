// Runs the event path under callgrind; without it the program only shows that it works.
//
// kestrune-event-path-instructions EVENTS: for each row and handler one dump of the cost of that many events,
// labelled "row/handler".
#include "benchmarks/EventPathCase.h"

#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

// The macros end in old-style casts and conversions of their own.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#include <valgrind/callgrind.h>

namespace {

using kestrune::benchmarks::AllHandlers;
using kestrune::benchmarks::EventPathCase;
using kestrune::benchmarks::EventPathRow;
using kestrune::benchmarks::Handler;

void measure(const EventPathRow& row, std::size_t events) {
    EventPathCase eventPath(row);
    for (const Handler handler : AllHandlers) {
        const std::string label = row.name() + "/" + std::string(nameOf(handler));
        // The first events bind the library functions.
        eventPath.feed(handler, 2);
        CALLGRIND_ZERO_STATS;
        eventPath.feed(handler, events);
        CALLGRIND_DUMP_STATS_AT(label.c_str());
    }
}

} // namespace

#pragma GCC diagnostic pop

int main(int count, char** arguments) {
    const std::string_view text = count == 2 ? arguments[1] : "";
    std::size_t events = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), events);
    if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size() || events == 0) {
        std::fputs("usage: kestrune-event-path-instructions EVENTS\n", stderr);
        return 2;
    }
    for (const EventPathRow& row : kestrune::benchmarks::eventPathRows()) {
        measure(row, events);
    }
    return 0;
}
