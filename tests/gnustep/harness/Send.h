// Messages of the harness, which names them by its own namespace.
#pragma once

#include "tests/mac/Send.h"

namespace kestrune::gnustep {

using native::classNamed;
using native::classObject;
using native::send;

} // namespace kestrune::gnustep
