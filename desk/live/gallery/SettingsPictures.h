// Pictures of the Settings window in every state.
#pragma once

#include "desk/command/Options.h"
#include "desk/live/gallery/WindowAlbum.h"
#include "desk/live/world/LiveDeskSetup.h"
#include "desk/recording/InputError.h"

#include <optional>
#include <string>
#include <variant>

namespace kestrune::desk {

// Runs the application on a simulated Mac and works with the Settings window as a user does: a page for each
// state, light and dark, also with texts 1.4 times as long, which is how long translations are assumed to
// become, and for a bundle without a copyright. The error says that a state did not come about.
std::variant<WindowAlbum, InputError> settingsAlbum(const LiveDeskSetup& setup);

// Writes each page as a PNG into a folder, which is made if need be, and "all.png" with them next to each
// other. The error also says what could not be written.
std::optional<InputError> writeSettingsPictures(const std::string& folder, const Options& options);

} // namespace kestrune::desk
