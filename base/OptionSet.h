// Enumerations whose enumerators are bits that can be combined, as the platform's NS_OPTIONS.
#pragma once

#include <type_traits>

namespace kestrune {

// True for the enumerations that are meant; each says so where it is declared.
template <typename Options>
inline constexpr bool IsOptionSet = false;

template <typename Options>
requires IsOptionSet<Options>
constexpr Options operator|(Options one, Options other) {
    using Bits = std::underlying_type_t<Options>;
    return static_cast<Options>(static_cast<Bits>(one) | static_cast<Bits>(other));
}

// Whether every bit of `part` is set.
template <typename Options>
requires IsOptionSet<Options>
constexpr bool contains(Options options, Options part) {
    using Bits = std::underlying_type_t<Options>;
    return (static_cast<Bits>(options) & static_cast<Bits>(part)) == static_cast<Bits>(part);
}

} // namespace kestrune
