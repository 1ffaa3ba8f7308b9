// The application's own event loop, and how to get out of it.
#pragma once

#include <functional>

namespace kestrune::gnustep {

// Does `work`, in which the application runs, and comes back once it has launched.
void runUntilLaunched(const std::function<void()>& work);

// Does `work` as something that the running application does. When it ends the process, only that is held
// back: everything before has happened.
void runWork(const std::function<void()>& work);

} // namespace kestrune::gnustep
