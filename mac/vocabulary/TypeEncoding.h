// Type encodings: how the runtime writes down a method's result and arguments.
//
// Source: developer.apple.com, Objective-C Runtime Programming Guide, Type Encodings.
#pragma once

#include "base/Geometry.h"
#include "mac/vocabulary/Runtime.h"
#include "platform/ProcessInfo.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <type_traits>

namespace kestrune::mac {

// The application's geometry is passed as Core Graphics' structures, its version as Foundation's.
static_assert(std::is_standard_layout_v<Rect> && std::is_trivially_copyable_v<Rect> && sizeof(Rect) == 32);
static_assert(std::is_standard_layout_v<Size> && std::is_trivially_copyable_v<Size> && sizeof(Size) == 16);
static_assert(std::is_standard_layout_v<OperatingSystemVersion> &&
              std::is_trivially_copyable_v<OperatingSystemVersion> && sizeof(OperatingSystemVersion) == 24);

template <typename Type>
inline constexpr bool HasNoEncoding = false;

template <typename Type>
constexpr std::string_view encodingOfType() {
    if constexpr (std::is_void_v<Type>) {
        return "v";
    } else if constexpr (std::is_same_v<Type, id>) {
        return "@";
    } else if constexpr (std::is_same_v<Type, id*>) {
        return "^@";
    } else if constexpr (std::is_same_v<Type, Class>) {
        return "#";
    } else if constexpr (std::is_same_v<Type, SEL>) {
        return ":";
    } else if constexpr (std::is_same_v<Type, bool>) {
        return "B";
    } else if constexpr (std::is_same_v<Type, signed char>) {
        return "c";
    } else if constexpr (std::is_same_v<Type, unsigned char>) {
        return "C";
    } else if constexpr (std::is_same_v<Type, double>) {
        return "d";
    } else if constexpr (std::is_same_v<Type, float>) {
        return "f";
    } else if constexpr (std::is_same_v<Type, int>) {
        return "i";
    } else if constexpr (std::is_same_v<Type, unsigned>) {
        return "I";
    } else if constexpr (std::is_integral_v<Type> && sizeof(Type) == 8) {
        return std::is_signed_v<Type> ? "q" : "Q";
    } else if constexpr (std::is_same_v<Type, const char*>) {
        return "*";
    } else if constexpr (std::is_same_v<Type, const void*>) {
        return "^v";
    } else if constexpr (std::is_same_v<Type, Point>) {
        return "{CGPoint=dd}";
    } else if constexpr (std::is_same_v<Type, Size>) {
        return "{CGSize=dd}";
    } else if constexpr (std::is_same_v<Type, Rect>) {
        return "{CGRect={CGPoint=dd}{CGSize=dd}}";
    } else if constexpr (std::is_same_v<Type, OperatingSystemVersion>) {
        return "{?=qqq}";
    } else {
        static_assert(HasNoEncoding<Type>, "add the encoding of this type");
    }
}

// The encodings one after the other, and a zero.
template <typename... Types>
constexpr auto joinedEncodings() {
    std::array<char, (encodingOfType<Types>().size() + ... + 1)> joined{};
    auto* end = joined.begin();
    // Each is asked for once: a literal need not be at the same place twice.
    const auto append = [&end](std::string_view text) { end = std::copy(text.begin(), text.end(), end); };
    (append(encodingOfType<Types>()), ...);
    return joined;
}

// The encoding of a method with that result and those arguments, without offsets.
template <typename Result, typename... Arguments>
inline constexpr auto EncodingOfMethod = joinedEncodings<Result, id, SEL, Arguments...>();

// The same for every compiler and runtime that means the same method: without offsets and qualifiers, with
// one letter for the kinds of BOOL and one for those of NSInteger, without the names of structures, and with
// blocks as objects.
std::string normalizedEncoding(std::string_view encoding);

} // namespace kestrune::mac
