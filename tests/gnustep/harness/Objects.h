// Plain values as objects, under the harness's namespace.
#pragma once

#include "tests/gnustep/harness/Send.h"
#include "tests/mac/Objects.h"

namespace kestrune::gnustep {

using native::errorFor;
using native::objectFor;

} // namespace kestrune::gnustep
