// What the process runs on.
#pragma once

#include "platform/ProcessInfo.h"

namespace kestrune::gnustep {

void installOperatingSystem();

inline constexpr OperatingSystemVersion SystemVersion = {14, 5, 2};

} // namespace kestrune::gnustep
