// Launching the application without a window, to read what it asks of the platform.
#pragma once

#include "desk/command/Options.h"
#include "replay/recording/InputError.h"

#include <string>
#include <variant>

namespace kestrune::desk {

// Every call from the start of the process to the end of what the launch left to be done, a line each in
// order; calls that only build menu items or read the displays are counted.
std::variant<std::string, replay::InputError> runLaunch(const Options& options);

} // namespace kestrune::desk
