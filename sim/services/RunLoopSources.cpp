#include "sim/services/RunLoopSources.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

std::vector<RunLoopSources::Entry>::iterator RunLoopSources::find(const std::shared_ptr<void>& source,
                                                                  RunLoopMode mode) {
    return std::find_if(entries_.begin(), entries_.end(),
                        [&](const Entry& entry) { return entry.source == source && entry.mode == mode; });
}

void RunLoopSources::add(std::shared_ptr<void> source, std::shared_ptr<Tap> tap, RunLoopMode mode) {
    if (find(source, mode) != entries_.end()) {
        return;
    }
    tap->scheduled = true;
    entries_.push_back({std::move(source), std::move(tap), mode});
}

void RunLoopSources::remove(const std::shared_ptr<void>& source, RunLoopMode mode) {
    const auto position = find(source, mode);
    if (position == entries_.end()) {
        return;
    }
    const Entry removed = std::move(*position);
    entries_.erase(position);
    removed.tap->scheduled = std::any_of(entries_.begin(), entries_.end(),
                                         [&](const Entry& entry) { return entry.tap == removed.tap; });
}

} // namespace kestrune::sim
