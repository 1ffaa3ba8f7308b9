// Time and allocations of each handler in each situation; the label says which, as "row/handler".
#include "benchmarks/EventPathAllocations.h"
#include "benchmarks/EventPathCase.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace kestrune::benchmarks {

namespace {

constexpr std::size_t EventsPerIteration = 100;

void everyRowAndHandler(benchmark::internal::Benchmark* registered) {
    const auto rows = static_cast<std::int64_t>(eventPathRows().size());
    for (std::int64_t row = 0; row < rows; ++row) {
        for (const Handler handler : AllHandlers) {
            registered->Args({row, static_cast<std::int64_t>(handler)});
        }
    }
}

void eventPath(benchmark::State& state) {
    const EventPathRow row = eventPathRows().at(static_cast<std::size_t>(state.range(0)));
    const auto handler = static_cast<Handler>(state.range(1));
    EventPathCase measured(row);
    constexpr auto Events = static_cast<double>(EventsPerIteration);
    const std::size_t allocations = allocationsOf(measured, handler, EventsPerIteration);
    for ([[maybe_unused]] auto iteration : state) {
        measured.feed(handler, EventsPerIteration);
    }
    state.SetLabel(row.name() + "/" + std::string(nameOf(handler)));
    state.counters["eventsPerIteration"] = Events;
    state.counters["allocationsPerEvent"] = static_cast<double>(allocations) / Events;
}

BENCHMARK(eventPath)->Apply(everyRowAndHandler);

} // namespace

} // namespace kestrune::benchmarks
