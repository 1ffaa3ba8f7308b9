// A program for the Mac that has launched and waits.
#pragma once

#include "tests/macho/loader/Program.h"

#include <string>

namespace kestrune::gnustep {

// The program in the bundle that was built with the tests, or the one that KESTRUNE_PROGRAM names in the
// environment.
std::string programForMacs();

// Runs the program until its event loop is left, as after the launch. It stays there, with everything that it
// has made, until the process ends: its entry point would come back only with the end of the application. A
// process has one such program.
void launchProgram(const std::string& path, macho::MessageChecks checks);

} // namespace kestrune::gnustep
