#include "tests/random/common/Settings.h"

#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace kestrune::simulate {

namespace {

std::uint64_t* numberNamed(std::string_view option, Settings& settings) {
    const std::array<std::pair<std::string_view, std::uint64_t*>, 4> numbers{
        {{"--seed", &settings.seed},
         {"--seeds", &settings.seeds},
         {"--actions", &settings.actions},
         {"--findings", &settings.findings}}};
    for (const auto& [name, number] : numbers) {
        if (name == option) {
            return number;
        }
    }
    return nullptr;
}

std::optional<std::uint64_t> readNumber(std::string_view text) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

} // namespace

std::variant<Settings, std::string> readSettings(int argumentCount, const char* const* arguments,
                                                 Settings settings) {
    for (int index = 1; index < argumentCount; ++index) {
        const std::string option = arguments[index];
        if (option == "--trace") {
            settings.trace = true;
            continue;
        }
        std::uint64_t* number = numberNamed(option, settings);
        if (number == nullptr) {
            return option + ": unknown; expected --seed, --seeds, --actions or --findings with a whole "
                            "number, or --trace";
        }
        ++index;
        const std::optional<std::uint64_t> value =
            index < argumentCount ? readNumber(arguments[index]) : std::nullopt;
        if (!value) {
            return option + ": expected a whole number";
        }
        *number = *value;
    }
    return settings;
}

} // namespace kestrune::simulate
