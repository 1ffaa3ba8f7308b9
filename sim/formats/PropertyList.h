// Property-list values, and how user defaults convert them.
//
// Source: docs/MAC_FACTS.md, "User defaults".
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::sim {

struct PropertyList;

// Entries by key; `find` takes a string_view and does not allocate.
using PropertyListDictionary = std::map<std::string, PropertyList, std::less<>>;

struct PropertyList {
    // Base64 text, kept as it stands.
    struct Data {
        std::string base64;
        friend bool operator==(const Data&, const Data&) = default;
    };

    // ISO 8601 text, kept as it stands.
    struct Date {
        std::string iso8601;
        friend bool operator==(const Date&, const Date&) = default;
    };

    using Array = std::vector<PropertyList>;
    using Dictionary = PropertyListDictionary;

    std::variant<bool, std::int64_t, double, std::string, Data, Date, Array, Dictionary> value;

    // NSUserDefaults boolForKey:, doubleForKey: and stringForKey: on a stored value.
    bool asBool() const;
    double asDouble() const;
    std::optional<std::string> asString() const;

    friend bool operator==(const PropertyList& one, const PropertyList& other) {
        return one.value == other.value;
    }
};

// The shortest text that reads back as the same number.
std::string shortestText(double number);

} // namespace kestrune::sim
