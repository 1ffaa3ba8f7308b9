// The application's domain of the user defaults.
#pragma once

#include "sim/formats/PropertyList.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune::sim {

class DefaultsDomain {
public:
    explicit DefaultsDomain(PropertyListDictionary entries) : entries_(std::move(entries)) {}

    // The stored value, null when there is none; valid until the entry changes.
    const PropertyList* find(std::string_view key) const;

    // Stores a value, or removes the entry when `value` is absent. Tests and the desk call this as "another
    // process".
    void set(std::string_view key, std::optional<PropertyList> value);

    const PropertyListDictionary& entries() const { return entries_; }

    // Called after each change, by whomever.
    void onChange(std::function<void(const PropertyListDictionary&)> observer) {
        observer_ = std::move(observer);
    }

private:
    PropertyListDictionary entries_;
    std::function<void(const PropertyListDictionary&)> observer_;
};

} // namespace kestrune::sim
