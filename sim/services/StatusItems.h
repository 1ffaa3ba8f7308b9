// The status items of the session's menu bar.
#pragma once

#include "platform/StatusBar.h"
#include "sim/services/StandingFaults.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::sim {

class StatusItems {
public:
    // `faults` must outlive this.
    explicit StatusItems(const StandingFaults& faults) : faults_(faults) {}

    void add(const std::shared_ptr<StatusItem::State>& item) { items_.push_back(item); }

    // From the first to the latest. An item leaves the bar with the last reference to it.
    std::vector<std::shared_ptr<StatusItem::State>> shown() const;

    // Whether a new one has a button.
    bool givesButtons() const { return !faults_.withholdsStatusButtons; }

    // The images that `imageNamed:` has found, which it gives again.
    std::map<std::string, std::shared_ptr<Image::State>, std::less<>>& namedImages() { return namedImages_; }

    // The application's process has ended.
    void clear();

private:
    const StandingFaults& faults_;
    std::vector<std::weak_ptr<StatusItem::State>> items_;
    std::map<std::string, std::shared_ptr<Image::State>, std::less<>> namedImages_;
};

} // namespace kestrune::sim
