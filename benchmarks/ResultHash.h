// One number that stands for a whole run: two runs that differ anywhere in what they hashed differ here.
#pragma once

#include "base/Geometry.h"

#include <bit>
#include <cstdint>

namespace kestrune::benchmarks {

// Takes a multiplication for each number, so that it costs little beside what it watches.
class ResultHash {
public:
    void add(std::uint64_t number) {
        value_ = (std::rotl(value_, 23) ^ number) * 0x9E3779B97F4A7C15; // odd, so that no step loses anything
    }

    void add(Point point) {
        add(std::bit_cast<std::uint64_t>(point.x));
        add(std::bit_cast<std::uint64_t>(point.y));
    }

    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0;
};

} // namespace kestrune::benchmarks
