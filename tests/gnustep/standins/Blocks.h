// Blocks seen from the harness.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::gnustep {

// Calls a block without argument, or with nil as its only one.
void callBlock(id block);

} // namespace kestrune::gnustep
