// A home directory of the process's own.
#pragma once

#include <string>

namespace kestrune::gnustep {

// Makes an empty one with the settings that GNUstep needs, points the environment at it, and removes it when
// the process exits. Before the first message to GNUstep, which keeps its defaults there.
void enterPrivateHome();

// Of this process.
const std::string& privateHome();

} // namespace kestrune::gnustep
