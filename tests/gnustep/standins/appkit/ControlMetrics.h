// The sizes of controls, and the role of a button.
#pragma once

#include "mac/vocabulary/Runtime.h"

namespace kestrune::gnustep {

void installControlMetrics();

// As NSControlSize, regular unless another one was set.
mac::Unsigned controlSize(id control);

bool hasDestructiveAction(id button);

} // namespace kestrune::gnustep
