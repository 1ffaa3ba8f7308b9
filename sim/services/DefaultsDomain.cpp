#include "sim/services/DefaultsDomain.h"

#include <utility>

namespace kestrune::sim {

const PropertyList* DefaultsDomain::find(std::string_view key) const {
    const auto entry = entries_.find(key);
    return entry == entries_.end() ? nullptr : &entry->second;
}

void DefaultsDomain::set(std::string_view key, std::optional<PropertyList> value) {
    if (value) {
        entries_.insert_or_assign(std::string(key), *std::move(value));
    } else if (const auto entry = entries_.find(key); entry != entries_.end()) {
        entries_.erase(entry);
    }
    if (observer_) {
        observer_(entries_);
    }
}

} // namespace kestrune::sim
