// What the colours of views are on the platform. The binding asks the system for them by these names; whoever
// simulates the system shows what they look like there.
#pragma once

#include "ui/Style.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrune::ui {

struct Shade {
    std::uint32_t hexadecimal; // 0xRRGGBB
    double alpha = 1;

    friend constexpr bool operator==(const Shade&, const Shade&) = default;
};

struct SystemColor {
    // Class properties of NSColor, of which the first one that the system has is it. The last is on every
    // system.
    std::array<std::string_view, 3> names;

    Shade light;
    Shade dark;

    constexpr const Shade& shade(bool isDark) const { return isDark ? dark : light; }
};

inline constexpr SystemColor WindowBackground{{"windowBackgroundColor"}, {0xECECEC}, {0x323232}};

// In the order of the enumerators. Before macOS 14 forms have the fill of a label's colour, if a stronger
// one.
inline constexpr std::array<SystemColor, 10> SystemColors{{
    {{"labelColor"}, {0x000000, 0.85}, {0xFFFFFF, 0.85}},
    {{"secondaryLabelColor"}, {0x000000, 0.50}, {0xFFFFFF, 0.55}},
    {{"tertiaryLabelColor"}, {0x000000, 0.26}, {0xFFFFFF, 0.25}},
    {{"controlAccentColor"}, {0x007AFF}, {0x0A84FF}},
    {{"systemGreenColor"}, {0x28CD41}, {0x32D74B}},
    {{"whiteColor"}, {0xFFFFFF}, {0xFFFFFF}},
    {{"linkColor"}, {0x0068DA}, {0x419CFF}},
    {{"quinarySystemFillColor", "quinaryLabelColor", "quaternaryLabelColor"},
     {0x000000, 0.03},
     {0xFFFFFF, 0.04}},
    {{"quaternarySystemFillColor", "quaternaryLabelColor"}, {0x000000, 0.05}, {0xFFFFFF, 0.05}},
    {{"separatorColor"}, {0x000000, 0.10}, {0xFFFFFF, 0.11}},
}};

constexpr const SystemColor& systemColor(Color color) {
    return SystemColors.at(static_cast<std::size_t>(color));
}

} // namespace kestrune::ui
