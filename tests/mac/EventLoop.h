// The run loop where AppKit does not run it itself.
#pragma once

#include "mac/vocabulary/Message.h"

namespace kestrune::native {

// Runs it in a mode for so many seconds, and does what is due by then; in the default mode it handles events
// as well.
void runEventLoop(id mode, double seconds);

} // namespace kestrune::native
