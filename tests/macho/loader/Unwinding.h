// Exceptions through the functions of a loaded program.
#pragma once

#include "tests/macho/loader/LoadedImage.h"

namespace kestrune::macho {

// From here on this process's unwinder, GCC's, knows how to leave the program's functions, so that exceptions
// of C++ and of Foundation pass through them. Throws MachError for what it cannot be told.
void registerUnwinding(const LoadedImage& image);

} // namespace kestrune::macho
