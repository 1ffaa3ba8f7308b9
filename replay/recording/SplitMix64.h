// A small pseudo-random generator whose sequence is the same on every platform and compiler, which the
// standard library's distributions are not.
//
// Source of the algorithm: Steele, Lea and Flood, "Fast Splittable Pseudorandom Number Generators", 2014.
#pragma once

#include <cstdint>

namespace kestrune::replay {

class SplitMix64 {
public:
    explicit constexpr SplitMix64(std::uint64_t seed) : state_(seed) {}

    constexpr std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31U);
    }

    // In [0, 1), a multiple of 2^-53.
    constexpr double unit() { return static_cast<double>(next() >> 11U) * 0x1p-53; }

    // In [least, most], which must not be empty. The bias is below 2^-32 for each value.
    constexpr int between(int least, int most) {
        const auto count = static_cast<std::uint64_t>(std::int64_t{most} - least + 1);
        const std::uint64_t offset = ((next() >> 32U) * count) >> 32U;
        return static_cast<int>(least + static_cast<std::int64_t>(offset));
    }

    // In [-extent, extent).
    constexpr double around(double extent) { return (2 * unit() - 1) * extent; }

private:
    std::uint64_t state_;
};

} // namespace kestrune::replay
