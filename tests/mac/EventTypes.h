// NSEventType's values.
#pragma once

#include "mac/vocabulary/Runtime.h"

namespace kestrune::native {

inline constexpr mac::Unsigned LeftMouseDown = 1;
inline constexpr mac::Unsigned LeftMouseUp = 2;
inline constexpr mac::Unsigned KeyDown = 10;
inline constexpr mac::Unsigned AppKitDefined = 13;

} // namespace kestrune::native
