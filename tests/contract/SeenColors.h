// Colours as they are expected in a window, whichever painter has rounded them.
#pragma once

#include "tests/contract/Shown.h"
#include "ui/SystemColor.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace kestrune::contract {

// A colour that shines through lies over another one.
inline SeenColor over(const SeenColor& below, const ui::Shade& shade) {
    const auto blended = [&shade](int lower, std::uint32_t upper) {
        return static_cast<int>(std::lround(lower + (static_cast<double>(upper) - lower) * shade.alpha));
    };
    return {blended(below.red, shade.hexadecimal >> 16), blended(below.green, shade.hexadecimal >> 8 & 0xFF),
            blended(below.blue, shade.hexadecimal & 0xFF)};
}

inline SeenColor over(const SeenColor& below, ui::Color color) {
    return over(below, ui::systemColor(color).light);
}

MATCHER_P(Like, expected,
          "is about " + testing::PrintToString(expected.red) + " " + testing::PrintToString(expected.green) +
              " " + testing::PrintToString(expected.blue)) {
    constexpr int Tolerance = 2;
    *result_listener << "which is " << arg.red << " " << arg.green << " " << arg.blue;
    return std::abs(arg.red - expected.red) <= Tolerance &&
           std::abs(arg.green - expected.green) <= Tolerance &&
           std::abs(arg.blue - expected.blue) <= Tolerance;
}

} // namespace kestrune::contract
