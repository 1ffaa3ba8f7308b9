// The desk in a window, for a person at a mouse and keyboard.
#pragma once

#include "desk/command/Options.h"

namespace kestrune::desk {

// Runs until the window is closed, then prints the report. Where no window can be opened it plays the tour
// into out/tour instead. Gives the exit status: 0, or 2 after one line on standard error.
int runDeskWindow(const Options& options);

} // namespace kestrune::desk
