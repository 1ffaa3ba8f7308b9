// Plain values as objects, under the harness's namespace.
#pragma once

#include "tests/mac/Objects.h"

namespace kestrune::gnustep {

using namespace native;

} // namespace kestrune::gnustep
