// Pictures of the first-run wizard in every state.
#pragma once

#include "desk/command/Options.h"
#include "desk/recording/InputError.h"

#include <optional>
#include <string>

namespace kestrune::desk {

// Runs the application on a simulated Mac, goes through the wizard as a user does and writes a PNG for each
// state and look, light and dark, into a folder, which is made if need be. "all.png" has them next to each
// other, and after them the states with texts 1.4 times as long, which is how long translations are assumed
// to become. The error says what could not be written, or that a state did not come about.
std::optional<InputError> writeWizardPictures(const std::string& folder, const Options& options);

} // namespace kestrune::desk
