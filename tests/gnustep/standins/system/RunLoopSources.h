// The run loop as CoreFoundation's clients know it: which sources it serves.
#pragma once

#include "mac/vocabulary/Runtime.h"

namespace kestrune::gnustep {

// Whether the main thread's run loop serves a source of this port in the mode that it is in.
bool servesPort(id port);

// The loop leaves its default mode while a menu is tracked.
void setTracksMenu(bool isTracking);

void removeRunLoopSources();

} // namespace kestrune::gnustep
