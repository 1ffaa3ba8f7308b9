// Small sections __unwind_info, for tests.
#pragma once

#include <cstdint>
#include <vector>

namespace kestrune::macho {

// Three functions in a page that lists each with its encoding, and two in one whose encodings are numbers:
// one that all pages have in common and one of the page's own. For x86-64 unless it is made for arm64.
struct TinyUnwind {
    std::uint32_t version = 1;
    std::uint32_t firstPageKind = 2;
    std::uint32_t encoding = 0x01000000;         // of the function at 0x100
    std::uint32_t encodingWithData = 0x51000000; // at 0x140: a frame pointer, the first personality and data
    std::uint32_t frameless = 0x02020000;        // at 0x180: two words
    std::uint32_t commonEncoding = 0x03040000;   // at 0x200: a large frame, whose size is four bytes into it
    std::uint32_t ownEncoding = 0x04000000;      // at 0x240: in DWARF

    std::uint32_t dataOf = 0x140;

    static constexpr std::uint32_t End = 0x280;
    static constexpr std::uint32_t Personality = 0x20;
    static constexpr std::uint32_t LanguageData = 0x2C0;

    // The same frames there, but that a large one is no case of its own: the function at 0x200 has a small
    // one and saves registers of both kinds.
    static TinyUnwind ofArm64();

    std::vector<std::uint8_t> bytes() const;
};

} // namespace kestrune::macho
