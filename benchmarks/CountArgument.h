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

} // namespace kestrune::benchmarks
