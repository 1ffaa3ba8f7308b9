// Colours of what is painted.
#pragma once

#include "ui/SystemColor.h"

#include <cmath>
#include <cstdint>

namespace kestrune::desk {

// Components from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    constexpr Color withAlpha(double newAlpha) const { return {red, green, blue, newAlpha}; }

    friend constexpr bool operator==(const Color&, const Color&) = default;
};

// A colour written as 0xRRGGBB.
constexpr Color rgb(std::uint32_t hexadecimal, double alpha = 1) {
    return {static_cast<double>(hexadecimal >> 16 & 0xFF) / 255,
            static_cast<double>(hexadecimal >> 8 & 0xFF) / 255, static_cast<double>(hexadecimal & 0xFF) / 255,
            alpha};
}
constexpr Color rgb(const ui::Shade& shade) { return rgb(shade.hexadecimal, shade.alpha); }

// The colour `fraction` of the way from the first to the second.
inline Color mix(const Color& first, const Color& second, double fraction) {
    return {std::lerp(first.red, second.red, fraction), std::lerp(first.green, second.green, fraction),
            std::lerp(first.blue, second.blue, fraction), std::lerp(first.alpha, second.alpha, fraction)};
}

} // namespace kestrune::desk
