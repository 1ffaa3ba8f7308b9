#include "sim/services/StatusItems.h"

#include "sim/services/StatusItemState.h"

namespace kestrune::sim {

std::vector<std::shared_ptr<StatusItem::State>> StatusItems::shown() const {
    std::vector<std::shared_ptr<StatusItem::State>> result;
    for (const std::weak_ptr<StatusItem::State>& candidate : items_) {
        if (auto item = candidate.lock()) {
            result.push_back(std::move(item));
        }
    }
    return result;
}

void StatusItems::clear() {
    items_.clear();
    namedImages_.clear();
}

} // namespace kestrune::sim
