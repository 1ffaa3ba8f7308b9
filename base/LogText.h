// Texts that the log keeps no more of than their place in the program's image.
//
// Source: os/log.h, whose macros put formats into a section of their own.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace kestrune {

// A text among the program's own, of a length that the compiler knows.
template <std::size_t Size>
struct LogText {
    char characters[Size]{};

    // NOLINTNEXTLINE(google-explicit-constructor): literals are meant
    consteval LogText(const char (&text)[Size]) { std::copy_n(text, Size, characters); }

    // Wherever there is a percent sign, the log looks for an argument.
    constexpr std::ptrdiff_t percentSigns() const { return std::count(characters, characters + Size, '%'); }

    constexpr bool contains(std::string_view text) const {
        return std::string_view(characters, Size).find(text) != std::string_view::npos;
    }
};

// Where a Mac's log looks for formats.
template <LogText Text>
struct StoredLogText {
#ifdef __APPLE__
    [[gnu::section("__TEXT,__oslogstring"), clang::internal_linkage]]
#endif
    static constexpr LogText Value = Text;
};

} // namespace kestrune
