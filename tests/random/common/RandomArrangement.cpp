#include "tests/random/common/RandomArrangement.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace kestrune::simulate {

namespace {

constexpr std::array<Size, 8> OrdinarySizes{{{1512, 982},
                                             {1920, 1080},
                                             {2560, 1440},
                                             {1280, 800},
                                             {1080, 1920},
                                             {3440, 1440},
                                             {2560, 1440.5},
                                             {1366.25, 768.75}}};

// Around the depth of the band and the one point that is left above and below it, where the guard's limits
// meet.
constexpr std::array<double, 12> LowHeights{0.5, 1, 1.5, 2, 2.25, 3, 4, 5, 5.75, 6, 7, 14};

constexpr std::array<Identity, 10> OddIdentities{
    Identity::withoutUUID,      Identity::twin,        Identity::withoutNumber, Identity::negativeNumber,
    Identity::fractionalNumber, Identity::textNumber,  Identity::realNumber,    Identity::tooLargeNumber,
    Identity::unknownNumber,    Identity::firstNumber,
};

constexpr std::array<Side, 4> Sides{Side::right, Side::left, Side::above, Side::below};

} // namespace

std::size_t RandomArrangement::count() {
    const double draw = random_.unit();
    if (draw < 0.03) {
        return 0;
    }
    if (draw < 0.1) {
        return 1;
    }
    if (draw < 0.5) {
        return 2;
    }
    if (draw < 0.75) {
        return 3;
    }
    return draw < 0.95 ? 4 + random_.index(3) : 16;
}

Size RandomArrangement::size() {
    if (tame_ || random_.chance(0.6)) {
        return random_.pick(OrdinarySizes);
    }
    const double draw = random_.unit();
    if (draw < 0.4) {
        return {random_.real(300, 3000), random_.pick(LowHeights)};
    }
    if (draw < 0.6) {
        return {random_.real(1, 40), random_.real(1, 40)};
    }
    if (draw < 0.65) {
        return {random_.chance(0.5) ? 0.0 : 800.0, 0};
    }
    return {random_.real(200, 4000) / 3, random_.real(200, 3000) / 3};
}

double RandomArrangement::shift() {
    if (random_.chance(0.3)) {
        return 0;
    }
    if (!tame_ && random_.chance(0.2)) {
        return random_.real(-900, 900);
    }
    return random_.whole(-900 * 4, 900 * 4) / 4.0;
}

Placement RandomArrangement::placement() {
    const bool overlaps = !tame_ && random_.chance(0.08);
    return {overlaps ? Side::onTop : random_.pick(Sides), random_.index(16), shift(), size()};
}

Identity RandomArrangement::identity() {
    return tame_ || random_.chance(0.8) ? Identity::ordinary : random_.pick(OddIdentities);
}

std::vector<sim::Display> RandomArrangement::displays() {
    std::vector<sim::Display> result;
    for (std::size_t remaining = count(); remaining > 0; --remaining) {
        result.push_back(another(result));
    }
    return result;
}

sim::Display RandomArrangement::another(const std::vector<sim::Display>& connected) {
    const Rect bounds = place(placement(), boundsOf(connected));
    return identify(identity(), nextID_++, bounds, connected);
}

std::vector<sim::Display> RandomArrangement::rearranged(std::vector<sim::Display> displays) {
    std::vector<Rect> standing;
    for (sim::Display& display : displays) {
        display.bounds = place(placement(), standing);
        standing.push_back(display.bounds);
    }
    return displays;
}

std::vector<sim::Display> RandomArrangement::renumbered(std::vector<sim::Display> displays) {
    for (sim::Display& display : displays) {
        display.displayID = nextID_++;
        display.screenNumber = std::int64_t{display.displayID};
    }
    return displays;
}

DisplayChange RandomArrangement::withoutOne(std::vector<sim::Display> displays) {
    const auto gone = displays.begin() + static_cast<std::ptrdiff_t>(random_.index(displays.size()));
    std::string what = gone->localizedName + " is unplugged";
    displays.erase(gone);
    return {std::move(what), std::move(displays)};
}

DisplayChange RandomArrangement::movedAround(std::vector<sim::Display> displays) {
    if (!displays.empty() && random_.chance(0.4)) {
        const std::size_t first = random_.index(displays.size());
        std::rotate(displays.begin(), displays.begin() + static_cast<std::ptrdiff_t>(first), displays.end());
        return {"another display becomes the primary one", std::move(displays)};
    }
    return {"the displays are rearranged", rearranged(std::move(displays))};
}

std::deque<std::vector<sim::Display>>
RandomArrangement::readingsInPassing(const std::vector<sim::Display>& displays) {
    std::deque<std::vector<sim::Display>> readings(1 + random_.index(8));
    for (std::vector<sim::Display>& reading : readings) {
        if (random_.chance(0.3)) {
            continue;
        }
        std::copy_if(displays.begin(), displays.end(), std::back_inserter(reading),
                     [this](const sim::Display& /*display*/) { return random_.chance(0.7); });
    }
    return readings;
}

std::optional<std::size_t> RandomArrangement::main(std::size_t count, double chanceOfNone) {
    if (count == 0 || random_.chance(chanceOfNone)) {
        return std::nullopt;
    }
    return random_.index(count + 1);
}

} // namespace kestrune::simulate
