// The one argument that the programs here take: how often.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace kestrune::benchmarks {

// `usual` without arguments, N for "option N" with a whole N above 0, and nothing for anything else.
std::optional<std::uint64_t> countFrom(std::span<char*> arguments, std::string_view option,
                                       std::uint64_t usual);

// The status of a program, whose command this is, that takes "option N" and "--untimed N": what `measure`
// makes of it, or 2 and a word on the usage.
int measureAsAsked(std::span<char*> command, std::string_view option, std::uint64_t usual,
                   int (*measure)(std::uint64_t count, bool isTimed));

} // namespace kestrune::benchmarks
