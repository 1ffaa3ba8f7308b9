// What a program imports and no stub has, without which it does not start.
#pragma once

#include "tests/macho/Fixups.h"
#include "tests/macho/TextStubs.h"

#include <string>
#include <vector>

namespace kestrune::macho {

// Each a line that says what and where. The imports are those of the slice.
std::vector<std::string> missingImports(const MachSlice& slice, const std::vector<Import>& imports,
                                        const TextStubs& stubs);

} // namespace kestrune::macho
