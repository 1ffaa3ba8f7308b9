// Protocols of a framework that is not there. GCC's runtime makes none at run time: they come with the
// modules that a compiler has made.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::gnustep {

// Once for each name; without methods.
void makeProtocol(const char* name);

bool adopts(Class type, const char* protocol);

} // namespace kestrune::gnustep
