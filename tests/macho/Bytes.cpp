#include "tests/macho/Bytes.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kestrune::macho {

namespace {

constexpr std::size_t LongestName = 200;

std::string_view asText(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

std::string hexadecimal(std::uint64_t number) {
    std::array<char, 2 * sizeof(number)> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return "0x" + std::string(digits.data(), end);
}

std::string printable(std::string_view text) {
    std::string result(text.substr(0, LongestName));
    std::replace_if(
        result.begin(), result.end(), [](char character) { return character < 0x20 || character > 0x7E; },
        '?');
    return result.size() < text.size() ? result + "..." : result;
}

std::span<const std::uint8_t> Bytes::span(std::uint64_t offset, std::uint64_t size,
                                          std::string_view what) const {
    if (offset > all_.size()) {
        refuse(std::string(what) + " would start at " + hexadecimal(offset) + " of " +
               hexadecimal(all_.size()) + " bytes");
    }
    if (size > all_.size() - offset) {
        refuse(std::string(what) + " at " + hexadecimal(offset) + " would have " + hexadecimal(size) +
               " bytes, of which " + hexadecimal(all_.size() - offset) + " are there");
    }
    return all_.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(size));
}

std::string_view Bytes::text(std::uint64_t offset, std::string_view what) const {
    const auto rest = span(offset, all_.size() - std::min<std::uint64_t>(offset, all_.size()), what);
    const auto end = std::find(rest.begin(), rest.end(), std::uint8_t{0});
    if (end == rest.end()) {
        refuse(std::string(what) + " at " + hexadecimal(offset) + " does not end");
    }
    return asText(rest.first(static_cast<std::size_t>(end - rest.begin())));
}

std::string_view Bytes::paddedText(std::uint64_t offset, std::uint64_t size, std::string_view what) const {
    const std::string_view field = asText(span(offset, size, what));
    return field.substr(0, field.find('\0'));
}

void Bytes::refuse(const std::string& what) const { throw MachError(name_ + ": " + what); }

} // namespace kestrune::macho
