// Small functions for arm64 that are made while a program is loaded.
#pragma once

#include <cstdint>
#include <vector>

namespace kestrune::macho {

// Runs some instructions and goes on to a function as if the caller had called it. Both registers are the
// ones that belong to nobody between two functions.
struct Stub {
    std::vector<std::uint32_t> instructions;
    std::uint64_t inX17 = 0;
    std::uint64_t goesOnTo = 0; // through x16

    // In words as the processor reads them.
    std::vector<std::uint32_t> code() const;
};

} // namespace kestrune::macho
