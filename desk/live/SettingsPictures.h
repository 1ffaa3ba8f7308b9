// Pictures of the Settings window in every state.
#pragma once

#include "desk/command/Options.h"
#include "desk/recording/InputError.h"

#include <optional>
#include <string>

namespace kestrune::desk {

// Runs the application on a simulated Mac, works with the Settings window as a user does and writes a PNG for
// each state, light and dark, into a folder, which is made if need be, also with texts 1.4 times as long,
// which is how long translations are assumed to become, and for a bundle without a copyright. "all.png" has
// them next to each other. The error says what could not be written, or that a state did not come about.
std::optional<InputError> writeSettingsPictures(const std::string& folder, const Options& options);

} // namespace kestrune::desk
