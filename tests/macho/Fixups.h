// What the loader has to write into a program before it runs: chained fixups, as linkers write them for
// macOS 13.
#pragma once

#include "tests/macho/MachSlice.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::macho {

struct Import {
    static constexpr int Self = 0;
    static constexpr int MainProgram = -1;
    static constexpr int AnyLibrary = -2;
    static constexpr int WeakDefinition = -3; // the first definition of all images counts

    int ordinal = 0; // of the library, from 1 on, or one of these
    bool isWeak = false;
    std::string_view name; // as in the symbol table: with an underscore before a name of C's
    std::int64_t addend = 0;
};

// A pointer into the program itself, to an address as it is in the file.
struct Rebase {
    std::uint64_t target = 0;
    std::uint8_t highByte = 0; // of the pointer
};

// A pointer to an import, plus the import's own addend and this one.
struct Bind {
    std::size_t import = 0;
    std::uint8_t addend = 0;
};

struct Fixup {
    std::uint64_t address = 0; // of 8 bytes, before the image is slid
    std::variant<Rebase, Bind> value;
};

struct Fixups {
    std::vector<Import> imports;
    std::vector<Fixup> fixups; // by address within each segment
};

// None when the program has none. Throws MachError for those that leave their page or their segment, for
// what they point at when it is nowhere, and for older ways to say what has to be fixed up.
Fixups readFixups(const MachSlice& slice);

} // namespace kestrune::macho
