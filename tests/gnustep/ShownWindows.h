// The application's windows, under the harness's namespace.
#pragma once

#include "tests/mac/ShownWindows.h"

namespace kestrune::gnustep {

using namespace native;

} // namespace kestrune::gnustep
