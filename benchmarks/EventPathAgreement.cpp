#include "benchmarks/EventPathAgreement.h"

#include "benchmarks/EventPathCase.h"
#include "benchmarks/ResultHash.h"
#include "replay/recording/SplitMix64.h"

#include <cstdio>
#include <string>

namespace kestrune::benchmarks {

namespace {

// Half of the locations are in the last points above a bottom edge; some are on no display.
Point someLocation(replay::SplitMix64& random, const EventPathCase& eventPath) {
    const Rect extent = eventPath.extent();
    const double height = eventPath.displayHeight();
    const double x = extent.minX() - 10 + random.unit() * (extent.width() + 20);
    if (random.between(0, 1) == 0) {
        return {x, extent.minY() - 10 + random.unit() * (extent.height() + 20)};
    }
    const int display = random.between(1, static_cast<int>(extent.height() / height));
    return {x, height * display - 8 + random.between(0, 64) / 8.0};
}

bool agree(const EventPathRow& row, std::size_t events, ResultHash& hash) {
    EventPathCase eventPath(row);
    replay::SplitMix64 random(row.displayCount);
    for (std::size_t index = 0; index < events; ++index) {
        const Point location = someLocation(random, eventPath);
        const Point expected = eventPath.handled(Handler::floor, location);
        hash.add(expected);
        for (const Handler decider : Deciders) {
            const Point handled = eventPath.handled(decider, location);
            if (handled != expected) {
                std::fprintf(stderr, "FAIL: %s: of (%.17g, %.17g), %s makes y %.17g and the floor %.17g\n",
                             row.name().c_str(), location.x, location.y, std::string(nameOf(decider)).c_str(),
                             handled.y, expected.y);
                return false;
            }
        }
    }
    return true;
}

} // namespace

std::optional<std::uint64_t> hashOfAgreement(std::size_t eventsPerRow) {
    ResultHash hash;
    for (const EventPathRow& row : eventPathRows()) {
        if (!agree(row, eventsPerRow, hash)) {
            return std::nullopt;
        }
    }
    return hash.value();
}

} // namespace kestrune::benchmarks
