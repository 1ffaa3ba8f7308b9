// What every fuzzer defines, and how it complains.
#pragma once

#include "base/Fatal.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Called with one input after the other; the name and the types are libFuzzer's. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kestrune {

inline std::string asText(const std::uint8_t* data, std::size_t size) { return {data, data + size}; }

// Stops the process, which is how a fuzzer reports an input.
inline void require(bool condition, std::string_view expectation) {
    if (!condition) {
        fatal(expectation);
    }
}

// A message is one line of printable text that starts with the place.
inline void requireOneLine(std::string_view message, std::string_view place) {
    require(message.starts_with(place), "an error names its place");
    require(message.size() > place.size(), "an error says what is wrong");
    for (const char character : message) {
        require(character >= 0x20 && character < 0x7F, "an error is one line of printable text");
    }
}

} // namespace kestrune
