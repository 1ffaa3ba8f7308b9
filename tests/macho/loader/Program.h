// A program for the Mac in this process.
#pragma once

#include "tests/macho/loader/Imports.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::macho {

// A section of the program that runs, in memory.
std::span<const std::uint8_t> sectionOfProgram(std::string_view name);

// Loads the part of the file that is for this processor and runs it. Gives the result of its entry point.
// When the file cannot be loaded the process says why in one line and ends with status 2. A process has one
// program at a time.
int runProgram(const std::string& path, MessageChecks checks, const std::vector<std::string>& arguments = {});

} // namespace kestrune::macho
