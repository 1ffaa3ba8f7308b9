// What a program defines for others, and for itself where other definitions would do as well.
#pragma once

#include "tests/macho/MachSlice.h"

#include <cstdint>
#include <map>
#include <string>

namespace kestrune::macho {

// The addresses by name, before the image is slid. Those that another library defines are left out. Throws
// MachError for a trie that leaves its bytes or runs in circles.
std::map<std::string, std::uint64_t> readExports(const MachSlice& slice);

} // namespace kestrune::macho
