// Both systems follow the System V ABI for x86-64, and both C++ libraries lay out their classes alike.
#include "tests/macho/loader/Conventions.h"

#include <dlfcn.h>

namespace kestrune::macho {

Functions functionsOfOtherConventions() { return {}; }

void* cxxFunction(void* library, const std::string& name) { return dlsym(library, name.c_str()); }

} // namespace kestrune::macho
