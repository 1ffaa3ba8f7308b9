// The desk in a window, for a person at a mouse and keyboard.
#pragma once

#include "desk/command/Command.h"

#include <string>
#include <variant>

namespace kestrune::desk {

// Runs until the window is closed, then gives the report. Where no window can be opened it draws the gallery
// into out/gallery instead, and tells so.
std::variant<std::string, replay::InputError> runDeskWindow(const Options& options, const Outcome& outcome);

} // namespace kestrune::desk
