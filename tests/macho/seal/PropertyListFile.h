// Property lists, in XML or binary, as values.
#pragma once

#include <cstddef>
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

// Larger ones than this are not read. What libplist 2.2 does with a list recurses, and the stack's 8 MB, as
// measured, are full at 26,000 dictionaries or 28,000 arrays one within the other. Of 5 bytes for each, the
// least that there are, so many bytes hold 13,000. The lists of an application with two hundred resources
// fit.
constexpr std::size_t LargestPropertyList = 65'536;

// Absent when it is no property list. Throws SealError, with the name, for one that is too large.
std::optional<PropertyValue> readPropertyListFile(std::span<const std::uint8_t> content,
                                                  const std::string& name);

} // namespace kestrune::macho
