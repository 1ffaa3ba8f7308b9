// The session, guard, Dock and hand together; the argument is the number of displays.
#include "benchmarks/GuardedDesk.h"

#include <benchmark/benchmark.h>

#include <cstddef>

namespace kestrune::benchmarks {

namespace {

void simulation(benchmark::State& state) {
    GuardedDesk desk(static_cast<std::size_t>(state.range(0)), Guard::on);
    for ([[maybe_unused]] auto iteration : state) {
        desk.step();
    }
    state.SetItemsProcessed(state.iterations());
    if (desk.dockMoves() > 0) {
        state.SkipWithError("the Dock left the pinned display");
    }
}

BENCHMARK(simulation)->Arg(2)->Arg(3);

} // namespace

} // namespace kestrune::benchmarks
