// The application's own event loop, and how to get out of it.
#pragma once

#include "tests/mac/RunningApplication.h"

#include <functional>

namespace kestrune::gnustep {

using native::runUntilLaunched;

// Does `work` as something that the running application does. When it ends the process, only that is held
// back: everything before has happened.
void runWork(const std::function<void()>& work);

} // namespace kestrune::gnustep
