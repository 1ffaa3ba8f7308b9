#include "benchmarks/CountArgument.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <string>

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

int measureAsAsked(std::span<char*> command, std::string_view option, std::uint64_t usual,
                   int (*measure)(std::uint64_t count, bool isTimed)) {
    if (const auto timed = countFrom(command.subspan(1), option, usual)) {
        return measure(*timed, true);
    }
    if (const auto untimed = countFrom(command.subspan(1), "--untimed", usual)) {
        return measure(*untimed, false);
    }
    const std::string name = std::filesystem::path(command.front()).filename().string();
    std::fprintf(stderr, "usage: %s [%s N | --untimed N], N above 0\n", name.c_str(),
                 std::string(option).c_str());
    return 2;
}

} // namespace kestrune::benchmarks
