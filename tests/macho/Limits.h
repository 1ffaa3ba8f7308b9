// What the shipped program may cost, and what it may expect of a system.
#pragma once

#include "tests/macho/MachSlice.h"
#include "tests/macho/TextStubs.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kestrune::macho {

struct Limits {
    std::uint64_t bytes = 900'000;
    std::size_t initializers = 60; // functions that run before main
    std::size_t imports = 170;
    Version minimumSystem{13, 0, 0};
    Version sdk; // that of the stubs
};

struct Measures {
    std::uint64_t bytes = 0;
    std::size_t initializers = 0;
    std::size_t imports = 0;
    Version minimumSystem;
    Version sdk;
    // Each a line that says what and where.
    std::vector<std::string> violations; // of limits
    std::vector<std::string> missing;    // imports without which the program does not start
};

// Throws MachError for a program that cannot be read.
Measures measure(const MachSlice& slice, const Limits& limits, const TextStubs& stubs);

} // namespace kestrune::macho
