#include "tests/macho/SystemVersion.h"

#include <yaml-cpp/yaml.h>

#include <charconv>

namespace kestrune::macho {

std::optional<Version> versionIn(std::string_view text) {
    Version version;
    const char* place = text.data();
    const char* const end = place + text.size();
    for (std::uint32_t* const part : {&version.major, &version.minor, &version.patch}) {
        const auto [next, error] = std::from_chars(place, end, *part);
        if (error != std::errc()) {
            return std::nullopt;
        }
        if (next == end) {
            return version;
        }
        if (*next != '.') {
            return std::nullopt;
        }
        place = next + 1;
    }
    return std::nullopt;
}

// JSON is YAML.
Version versionOfSettings(const std::string& json, const std::string& name) {
    try {
        const auto text = YAML::Load(json)["Version"].as<std::string>();
        if (const auto version = versionIn(text)) {
            return *version;
        }
        throw MachError(name + ": " + printable(text) + " is no version");
    } catch (const YAML::Exception& error) {
        throw MachError(name + ": " + printable(error.what()));
    }
}

} // namespace kestrune::macho
