// What a program for the Mac calls where Apple's conventions for this processor are not those of Linux.
#pragma once

#include "tests/macho/loader/Messages.h"

#include <string>

namespace kestrune::macho {

// Functions of C's and the runtime's that have to be called in another way.
Functions functionsOfOtherConventions();

// What the program gets for a name of the C++ library's; null when the library has nothing like it. Throws
// MachError with the name when it has it, but for other conventions.
void* cxxFunction(void* library, const std::string& name);

} // namespace kestrune::macho
