// What the unified log holds.
#pragma once

#include "tests/contract/World.h"

#include <vector>

namespace kestrune::gnustep {

std::vector<contract::LoggedMessage>& loggedMessages();

} // namespace kestrune::gnustep
