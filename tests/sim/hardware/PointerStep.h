// The distance between two places of the simulated pointer.
#pragma once

namespace kestrune::sim {

inline constexpr double PointerStep = 1.0 / 256; // points

} // namespace kestrune::sim
