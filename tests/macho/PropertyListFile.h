// Property lists, in XML or binary, as values.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::macho {

// Kinds that no seal uses are left empty.
struct PropertyValue {
    using Data = std::vector<std::uint8_t>;
    using Dictionary = std::map<std::string, PropertyValue>;
    std::variant<std::monostate, bool, double, std::string, Data, Dictionary> value;

    bool operator==(const PropertyValue&) const = default;

    // Null when it is no dictionary, or has no such key.
    const PropertyValue* at(const std::string& key) const;
    template <typename Kind>
    const Kind* as() const {
        return std::get_if<Kind>(&value);
    }
    // The text under a key of a dictionary, or none.
    std::optional<std::string> text(const std::string& key) const;
};

// Absent when it is no property list.
std::optional<PropertyValue> readPropertyListFile(std::span<const std::uint8_t> content);

} // namespace kestrune::macho
