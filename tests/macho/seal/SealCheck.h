// Whether the seal of a bundle holds: everything that a system looks at before it runs the program, and some
// things that it overlooks.
#pragma once

#include "tests/macho/FileTree.h"
#include "tests/macho/MachSlice.h"
#include "tests/macho/TextStubs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kestrune::macho {

struct SealedHalf {
    Processor processor{};
    std::uint64_t size = 0;
    Version minimumSystem; // 0.0 when it does not say
    std::string identifier;
    std::array<std::uint8_t, 20> cdhash{};
    std::size_t pages = 0;
};

// One for each processor, in the order of the file. Throws SealError for a seal that does not hold, and
// MachError for a program that cannot be read or, where there are stubs, imports what is in none of them. The
// name of the tree has to end like that of the bundle. Code within it comes from elsewhere as a rule, and
// imports what nobody has listed.
std::vector<SealedHalf> checkSeal(const FileTree& bundle, const TextStubs* stubs = nullptr);

// Of a program without a bundle; `name` is what messages call it.
std::vector<SealedHalf> checkProgramSeal(const FileContent& program, const std::string& name);

} // namespace kestrune::macho
