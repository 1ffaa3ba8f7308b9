// Random displays: from an ordinary desk to what no desk should have.
#pragma once

#include "sim/Display.h"
#include "tests/simulate/Arrangement.h"
#include "tests/simulate/Random.h"

#include <vector>

namespace kestrune::simulate {

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
