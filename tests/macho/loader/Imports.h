// What a program for the Mac imports, as this process has it: GNUstep and GCC's runtime, the stand-ins,
// LLVM's C++ library, glibc.
#pragma once

#include "tests/macho/loader/LoadedImage.h"
#include "tests/macho/loader/Messages.h"

namespace kestrune::macho {

// Refuses a name that is found where the library of the Mac's could not have it.
Resolve importsOfThisProcess(MessageChecks checks);

} // namespace kestrune::macho
