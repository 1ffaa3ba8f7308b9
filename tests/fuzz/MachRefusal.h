// What readers of Mach-O files say to input that they refuse.
#pragma once

#include "tests/fuzz/Fuzzer.h"
#include "tests/macho/Bytes.h"

namespace kestrune {

// What the input is called.
inline constexpr const char* MachInput = "fuzz";

// The work may be refused, in one line that names the input.
template <typename Work>
void attempt(Work work) {
    try {
        work();
    } catch (const macho::MachError& error) {
        requireOneLine(error.what(), "fuzz: ");
    }
}

} // namespace kestrune
