// The hashes that seals are made of.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace kestrune::macho {

using Sha256 = std::array<std::uint8_t, 32>;
using Sha1 = std::array<std::uint8_t, 20>;

Sha256 sha256(std::span<const std::uint8_t> data);
Sha1 sha1(std::span<const std::uint8_t> data);

// Two digits for each byte.
std::string digits(std::span<const std::uint8_t> data);

} // namespace kestrune::macho
