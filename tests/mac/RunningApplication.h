// The application's own event loop, and how to get out of it.
#pragma once

#include <functional>

namespace kestrune::native {

// Does `work`, in which the application runs, and comes back once it has launched.
void runUntilLaunched(const std::function<void()>& work);

// Has `run` return, which it does only with the process otherwise.
void stopRunning();

} // namespace kestrune::native
