#include "sim/Observers.h"

#include <utility>

namespace kestrune::sim {

void Observers::add(std::string_view name, std::function<void()> block) {
    entries_.push_back({std::string(name), std::make_shared<std::function<void()>>(std::move(block))});
}

void Observers::post(std::string_view name) const {
    const unsigned before = clearings_;
    // A copy, because a block may add observers or end the process.
    for (const Entry& entry : std::vector<Entry>(entries_)) {
        if (entry.name == name && clearings_ == before) {
            (*entry.block)();
        }
    }
}

void Observers::clear() {
    entries_.clear();
    ++clearings_;
}

} // namespace kestrune::sim
