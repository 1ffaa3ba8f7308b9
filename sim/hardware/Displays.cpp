#include "sim/hardware/Displays.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

namespace {

template <typename Predicate>
const Display* firstWhere(const std::vector<Display>& displays, Predicate predicate) {
    const auto match = std::find_if(displays.begin(), displays.end(), predicate);
    return match == displays.end() ? nullptr : &*match;
}

const Display* firstWithID(const std::vector<Display>& displays, DisplayID displayID) {
    return firstWhere(displays,
                      [displayID](const Display& display) { return display.displayID == displayID; });
}

} // namespace

Displays::Displays(std::vector<Display> displays) : connected_(std::move(displays)) {}

void Displays::set(std::vector<Display> displays) { connected_ = std::move(displays); }

std::vector<Display> Displays::read() {
    if (scriptedReads_.empty()) {
        lastRead_ = connected_;
    } else {
        lastRead_ = std::move(scriptedReads_.front());
        scriptedReads_.pop_front();
    }
    return lastRead_;
}

std::optional<Display> Displays::main() const {
    if (!main_ || *main_ >= connected_.size()) {
        return std::nullopt;
    }
    return connected_[*main_];
}

std::optional<std::string> Displays::uuidOf(DisplayID displayID) const {
    if (const Display* display = withID(displayID)) {
        return display->uuid;
    }
    const Display* lastRead = firstWithID(lastRead_, displayID);
    return lastRead != nullptr ? lastRead->uuid : std::nullopt;
}

Rect Displays::appKitFrame(const Rect& bounds) const {
    const std::vector<Display>& arrangement = connected_.empty() ? lastRead_ : connected_;
    const double primaryHeight = arrangement.empty() ? 0 : arrangement.front().bounds.height();
    return {bounds.origin.x, primaryHeight - bounds.origin.y - bounds.height(), bounds.width(),
            bounds.height()};
}

const Display* Displays::containing(Point point) const {
    return firstWhere(connected_, [point](const Display& display) { return display.bounds.contains(point); });
}

const Display* Displays::withID(DisplayID displayID) const { return firstWithID(connected_, displayID); }

} // namespace kestrune::sim
