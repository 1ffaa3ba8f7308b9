// kestrune-benchmarks: first shows that what is measured does the right thing, then measures it. Takes the
// options of Google Benchmark.
#include "benchmarks/AllocationCounter.h"
#include "benchmarks/EventPathAgreement.h"
#include "benchmarks/EventPathAllocations.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

using kestrune::benchmarks::allocationCount;

constexpr std::size_t EventsPerRow = 2'000;

// A counter that counts nothing would find nothing.
bool countsAllocations() {
    const std::size_t before = allocationCount();
    const auto number = std::make_unique<int>(0);
    benchmark::DoNotOptimize(*number);
    return allocationCount() == before + 1;
}

} // namespace

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments)) {
        return 2;
    }
    if (!countsAllocations()) {
        std::fputs("FAIL: allocations are not counted\n", stderr);
        return 1;
    }
    const std::optional<std::uint64_t> hash = kestrune::benchmarks::hashOfAgreement(EventsPerRow);
    if (!hash) {
        return 1;
    }
    std::fprintf(stderr, "event path: hash=%016llx\n", static_cast<unsigned long long>(*hash));
    const bool allocates = kestrune::benchmarks::eventPathAllocates();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return allocates ? 1 : 0;
}
