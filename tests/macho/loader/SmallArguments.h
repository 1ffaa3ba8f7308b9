// Arguments of methods that are smaller than what holds them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrune::macho {

// On arm64 Apple's callers fill 32 bits of a register with such an argument and its functions count on it,
// while Linux' callers leave in the rest whatever there was. These are the instructions that fill it for a
// method of that encoding. Nothing when the method also has arguments on the stack, where the two differ as
// well, or of types that none of ours has.
std::optional<std::vector<std::uint32_t>> instructionsThatFill(std::string_view encoding);

} // namespace kestrune::macho
