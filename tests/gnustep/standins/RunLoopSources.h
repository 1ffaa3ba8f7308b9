// The run loop as CoreFoundation's clients know it: which sources it serves.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::gnustep {

// Whether the main thread's run loop serves a source of this port in its default mode.
bool servesPort(id port);

void removeRunLoopSources();

} // namespace kestrune::gnustep
