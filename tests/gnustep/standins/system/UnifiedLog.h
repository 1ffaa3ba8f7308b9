// What the unified log holds.
#pragma once

#include "tests/contract/World.h"

#include <vector>

namespace kestrune::gnustep {

std::vector<contract::LoggedMessage>& loggedMessages();

// Whether it takes messages at all; at first it does.
void setLogEnabled(bool isEnabled);

} // namespace kestrune::gnustep
