// Small Mach-O files as a linker would write them, for tests: a few hundred bytes that no processor runs.
#pragma once

#include "tests/macho/Fixups.h"
#include "tests/macho/MachSlice.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace kestrune::macho {

// The data segment holds a pointer to the code and then one to each import. The last 16 bytes are for a code
// signature and hold none.
struct TinyProgram {
    static constexpr std::uint64_t LoadAddress = 0x100000000;
    static constexpr std::uint64_t DataAddress = 0x100010000;

    Processor processor = Processor::arm64;
    FileType type = FileType::executable;
    std::size_t codeSize = 32;
    std::uint32_t initializers = 1;
    std::uint32_t sizeOfPages = 0x4000;
    std::uint16_t pointerFormat = 6;
    Version minimumSystem{13, 0, 0};
    std::vector<std::string> libraries{"/usr/lib/libSystem.B.dylib"};
    std::vector<Import> imports{{1, false, "_exit", 0}};
    std::vector<std::string> texts; // constants; without any there is no section for them

    std::vector<std::uint8_t> bytes() const;
};

// One file of several programs.
std::vector<std::uint8_t> universal(const std::vector<TinyProgram>& programs);

// One of each kind, by the names that they have in tests/fuzz/corpus/mach-file, which they are written to by
// kestrune-tiny-programs.
std::map<std::string, std::vector<std::uint8_t>> tinyPrograms();

} // namespace kestrune::macho
