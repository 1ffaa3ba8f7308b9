// What a program for the Mac imports, as this process has it: GNUstep and GCC's runtime, the stand-ins,
// LLVM's C++ library, glibc.
#pragma once

#include "tests/macho/loader/LoadedImage.h"

namespace kestrune::macho {

// Whether each message is first held against the method that it finds. It costs time with every message.
enum class MessageChecks { none, structureReturns };

// The process ends with a line when a name is found where the library of the Mac's could not have it.
Resolve importsOfThisProcess(MessageChecks checks);

} // namespace kestrune::macho
