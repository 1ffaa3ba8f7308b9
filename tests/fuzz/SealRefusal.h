// What checkers of seals say to input that they refuse.
#pragma once

#include "tests/fuzz/Fuzzer.h"
#include "tests/macho/Bytes.h"
#include "tests/macho/seal/SealError.h"

namespace kestrune {

// Whether a check ends well. It may refuse the input in one line, which names a file of the bundle.
template <typename Check>
bool holds(Check check) {
    try {
        check();
        return true;
    } catch (const macho::SealError& error) {
        requireOneLine(error.what(), "Tiny.app/");
    } catch (const macho::MachError& error) {
        requireOneLine(error.what(), "Tiny.app/");
    }
    return false;
}

} // namespace kestrune
