#include "benchmarks/CountArgument.h"

#include <charconv>

namespace kestrune::benchmarks {

std::optional<std::uint64_t> countFrom(std::span<char*> arguments, std::string_view option,
                                       std::uint64_t usual) {
    if (arguments.empty()) {
        return usual;
    }
    if (arguments.size() != 2 || std::string_view(arguments[0]) != option) {
        return std::nullopt;
    }
    const std::string_view text = arguments[1];
    std::uint64_t count = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool isWhole = parsed.ec == std::errc() && parsed.ptr == text.data() + text.size();
    return isWhole && count > 0 ? std::optional(count) : std::nullopt;
}

} // namespace kestrune::benchmarks
