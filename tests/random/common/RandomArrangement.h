// Random displays: from an ordinary desk to what no desk should have.
#pragma once

#include "sim/hardware/Display.h"
#include "tests/random/common/Arrangement.h"
#include "tests/random/common/Random.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::simulate {

// What happened to the displays, readable, and the displays after it.
struct DisplayChange {
    std::string what;
    std::vector<sim::Display> displays;
};

class RandomArrangement {
public:
    // A `tame` arrangement has displays of ordinary sizes, none overlapping, each with a UUID and a number.
    RandomArrangement(Random& random, bool tame) : random_(random), tame_(tame) {}

    // All displays of a session's beginning, possibly none.
    std::vector<sim::Display> displays();

    // One more display beside those that are connected.
    sim::Display another(const std::vector<sim::Display>& connected);

    // The same displays in other places and sizes.
    std::vector<sim::Display> rearranged(std::vector<sim::Display> displays);

    // The same displays under other numbers.
    std::vector<sim::Display> renumbered(std::vector<sim::Display> displays);

    // One display less; there must be one.
    DisplayChange withoutOne(std::vector<sim::Display> displays);

    // Another primary display, or other places and sizes.
    DisplayChange movedAround(std::vector<sim::Display> displays);

    // What the next readings of the list give while the system changes it: some of the displays or none.
    std::deque<std::vector<sim::Display>> readingsInPassing(const std::vector<sim::Display>& displays);

    // The place of the main display, perhaps behind the last of `count`; absent with that chance.
    std::optional<std::size_t> main(std::size_t count, double chanceOfNone);

private:
    Placement placement();
    Size size();
    double shift();
    Identity identity();
    std::size_t count();

    Random& random_;
    bool tame_;
    DisplayID nextID_ = 1;
};

} // namespace kestrune::simulate
