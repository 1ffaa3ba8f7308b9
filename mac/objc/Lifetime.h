// Objects that the platform may still be using after nobody else needs them.
#pragma once

#include "mac/vocabulary/Runtime.h"

namespace kestrune::mac {

// Retains an object until the main run loop's next turn in its default mode. An event is handled within one
// such turn, however long its tracking lasts, so a window or a control can be let go of by what it does and
// is there until AppKit has finished with it. Nil is nothing.
void keepForThisTurn(id object);

} // namespace kestrune::mac
