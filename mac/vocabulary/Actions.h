// Actions of our own views, which controls in them send.
#pragma once

#include "mac/vocabulary/Action.h"

namespace kestrune::mac::actions {

// NOLINTBEGIN(readability-identifier-naming): they are methods.
inline constexpr Action<void(id)> pressButton{"pressButton:"};
inline constexpr Action<void(id)> flipSwitch{"flipSwitch:"};
// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac::actions
