// Checks that bytes are UTF-8.
//
// Source: RFC 3629, section 4 (the byte sequences that are well formed).
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kestrune {

// The offset of the first byte that starts no well-formed character; absent when all are well formed.
// Overlong forms, surrogates and values above U+10FFFF are not well formed.
std::optional<std::size_t> firstInvalidUtf8(std::string_view text);

} // namespace kestrune
