#include "replay/StoredChoices.h"

#include "replay/GuardRule.h"

namespace kestrune::replay {

bool StoredChoices::isEnabled() const {
    const sim::PropertyList* stored = defaults_.find(entries::IsEnabled);
    return stored == nullptr || stored->asBool();
}

std::optional<std::string> StoredChoices::pinnedScreenUUID() const {
    const sim::PropertyList* stored = defaults_.find(entries::PinnedScreenUUID);
    return stored != nullptr ? stored->asString() : std::nullopt;
}

double StoredChoices::blockMargin() const {
    const sim::PropertyList* stored = defaults_.find(entries::BlockMargin);
    return bandDepth(stored != nullptr ? stored->asDouble() : 0);
}

void StoredChoices::setBlockMargin(double points) {
    defaults_.set(entries::BlockMargin, sim::PropertyList{points});
}

void store(const ChoicesToStore& choices, sim::PropertyListDictionary& defaults) {
    if (choices.pinnedScreenUUID) {
        defaults.insert_or_assign(std::string(entries::PinnedScreenUUID),
                                  sim::PropertyList{*choices.pinnedScreenUUID});
    }
    if (choices.isEnabled) {
        defaults.insert_or_assign(std::string(entries::IsEnabled), sim::PropertyList{*choices.isEnabled});
    }
    if (choices.blockMargin) {
        defaults.insert_or_assign(std::string(entries::BlockMargin), sim::PropertyList{*choices.blockMargin});
    }
}

} // namespace kestrune::replay
