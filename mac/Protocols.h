// The protocols of the platform's delegates.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::mac {

// A protocol is there at run time only when an image that is loaded has kept it. Nobody needs one whose
// methods are asked for, so one that is missing is named in the log, once, and that is all.
void adopt(Class type, const char* protocolName);

} // namespace kestrune::mac
