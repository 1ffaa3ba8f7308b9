// The session around the application's process: its bundle, two displays and the permission.
#pragma once

#include <filesystem>
#include <string>

namespace kestrune::gnustep {

// Installs all stand-ins. Writes the bundle, with the pictures as they are shipped, into the home. Connects
// the display Left, which is the X screen, and Right beside it.
void beginSession(const std::filesystem::path& home, bool isPermitted);

// The user switches the application on under Accessibility in the system's settings.
void grantPermission();

// The names of the displays of which a pointer at the bottom edge is held off, with spaces between.
std::string guardedDisplays();

} // namespace kestrune::gnustep
