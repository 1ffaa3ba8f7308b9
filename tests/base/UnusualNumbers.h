// What no coordinate should be.
#pragma once

#include <limits>

namespace kestrune {

inline constexpr double Infinity = std::numeric_limits<double>::infinity();
inline constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace kestrune
