// The desk in a window, for a person at a mouse and keyboard.
#pragma once

#include "desk/command/Command.h"

namespace kestrune::desk {

// Runs until the window is closed, then prints the report. Where no window can be opened it draws the
// gallery into out/gallery instead. Gives the exit status: 0, or 2 after one line on standard error.
int runDeskWindow(const Options& options, const Outcome& outcome);

} // namespace kestrune::desk
