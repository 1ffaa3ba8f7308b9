// Source: Arm Architecture Reference Manual, LDR (literal) and BR.
#include "tests/macho/loader/Stub.h"

namespace kestrune::macho {

namespace {

constexpr std::uint32_t LoadX16 = 0x58000010; // with the distance in words from bit 5 on
constexpr std::uint32_t LoadX17 = 0x58000011;
constexpr std::uint32_t GoToX16 = 0xD61F0200;
constexpr std::uint32_t Nothing = 0xD503201F;

void addAddress(std::vector<std::uint32_t>& words, std::uint64_t address) {
    words.push_back(static_cast<std::uint32_t>(address));
    words.push_back(static_cast<std::uint32_t>(address >> 32));
}

} // namespace

std::vector<std::uint32_t> Stub::code() const {
    std::vector<std::uint32_t> words = instructions;
    const auto start = static_cast<std::uint32_t>(words.size());
    // The addresses stand behind the last of three instructions, each where a double word may begin.
    const std::uint32_t addresses = (start + 3 + 1) / 2 * 2;
    words.push_back(LoadX17 | (addresses - start) << 5);
    words.push_back(LoadX16 | (addresses + 2 - (start + 1)) << 5);
    words.push_back(GoToX16);
    words.resize(addresses, Nothing);
    addAddress(words, inX17);
    addAddress(words, goesOnTo);
    return words;
}

} // namespace kestrune::macho
