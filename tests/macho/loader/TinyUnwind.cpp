#include "tests/macho/loader/TinyUnwind.h"

#include <initializer_list>

namespace kestrune::macho {

TinyUnwind TinyUnwind::ofArm64() {
    TinyUnwind unwind;
    unwind.encoding = 0x04000000;
    unwind.encodingWithData = 0x54000000;
    unwind.frameless = 0x02001000;
    unwind.commonEncoding = 0x04000911;
    unwind.ownEncoding = 0x03000000;
    return unwind;
}

std::vector<std::uint8_t> TinyUnwind::bytes() const {
    std::vector<std::uint8_t> result;
    const auto words = [&result](std::initializer_list<std::uint32_t> numbers) {
        for (const std::uint32_t number : numbers) {
            for (unsigned shift = 0; shift < 32; shift += 8) {
                result.push_back(static_cast<std::uint8_t>(number >> shift));
            }
        }
    };
    constexpr std::uint32_t Common = 28;
    constexpr std::uint32_t Personalities = Common + 4;
    constexpr std::uint32_t Index = Personalities + 4;
    constexpr std::uint32_t Data = Index + 3 * 12;
    constexpr std::uint32_t FirstPage = Data + 8;
    constexpr std::uint32_t SecondPage = FirstPage + 8 + 3 * 8;
    words({version, Common, 1, Personalities, 1, Index, 3});
    words({commonEncoding});
    words({Personality});
    words({0x100, FirstPage, Data, 0x200, SecondPage, Data + 8, End, 0, Data + 8});
    words({dataOf, LanguageData});
    // Entries follow at 8, three of them.
    words({firstPageKind, 8 | 3 << 16});
    words({0x100, encoding, 0x140, encodingWithData, 0x180, frameless});
    // Entries follow at 12, two of them; encodings at 20, one.
    words({3, 12 | 2 << 16, 20 | 1 << 16});
    words({0x000000, 0x01000040});
    words({ownEncoding});
    return result;
}

} // namespace kestrune::macho
