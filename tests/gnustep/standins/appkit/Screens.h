// The connected displays.
#pragma once

#include "tests/contract/World.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::gnustep {

void installScreens();

// Takes the place of the displays before, the primary first; the main screen is the first. The application is
// told, if there is one that listens.
void connectDisplays(const std::vector<contract::ConnectedDisplay>& displays);

// By its place in the list; absent: there is none.
void setMainScreen(std::optional<std::size_t> index);

// Of a connected display.
std::optional<std::string> uuidOfDisplay(DisplayID displayID);

} // namespace kestrune::gnustep
