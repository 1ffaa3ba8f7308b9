// The value of the option --displays: where the simulated displays are.
#pragma once

#include "base/Geometry.h"
#include "replay/recording/InputError.h"

#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::replay {

// A comma-separated list of WxH+X+Y (or -X, -Y) in global display coordinates, in points, decimals allowed,
// for example
//
//     1512x982+0+0,1920x1080-1920+0,2560x1440.5+1512-458.5
//
// The first display is the primary and lies at +0+0. At most 16 displays; every number within one million
// either way; sizes of at least a thousandth of a point. Displays may touch but not overlap; an overlap of up
// to a billionth of a point is taken for touching, because sums of decimal fractions are not exact.
//
// Messages name the option and the display, which counts from 1.
std::variant<std::vector<Rect>, InputError> parseDisplayList(std::string_view text);

} // namespace kestrune::replay
