// How the functions of a Mach-O program are left when an exception passes through them: the compact form that
// Apple's compilers write.
//
// Source: LLVM, include/mach-o/compact_unwind_encoding.h.
#pragma once

#include "tests/macho/Bytes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrune::macho {

// All places count from the start of the image.
struct UnwoundFunction {
    std::uint32_t start = 0;
    std::uint32_t end = 0;
    std::uint32_t encoding = 0;                // for the processor, without the parts below
    std::optional<std::uint32_t> personality;  // where the pointer to the function is
    std::optional<std::uint32_t> languageData; // what the personality reads
};

// The functions of a section __unwind_info, in order. Throws MachError.
std::vector<UnwoundFunction> readCompactUnwind(const Bytes& section);

} // namespace kestrune::macho
