#include "benchmarks/EventPathFloor.h"

#include "Kestrune/Preferences.h"
#include "base/Fatal.h"

#include <algorithm>
#include <cstring>

namespace kestrune::benchmarks {

namespace {

// In the callback this is part of the one function, as somebody who writes it by hand would have it.
[[gnu::always_inline]] inline Event* decide(const EventPathFloor& floor, Event* event) {
    const UserDefaults* const defaults = floor.defaults;
    if (defaults == nullptr || (defaults->objectForKey(Preferences::IsEnabledKey) != nullptr &&
                                !defaults->boolForKey(Preferences::IsEnabledKey))) {
        return event;
    }
    const std::size_t count = floor.displayCount;
    if (count < 2 || !floor.hasPinned) {
        return event;
    }
    const Point location = event->location();
    const Edges* const frames = floor.frames.data();
    // Unrolled by the library, which beats a loop of one's own from four displays on.
    const Edges* const frame = std::find_if(
        frames, frames + count, [location](const Edges& edges) { return edges.contains(location); });
    if (frame == frames + count) {
        return event;
    }
    const std::string_view identifier = floor.identifiers[static_cast<std::size_t>(frame - frames)];
    const std::string_view pinned = floor.pinnedIdentifier;
    if (identifier.size() == pinned.size() &&
        std::memcmp(identifier.data(), pinned.data(), pinned.size()) == 0) {
        return event;
    }
    double margin = defaults->doubleForKey(Preferences::BlockMarginKey);
    if (!(margin > 0)) {
        margin = 4.0;
    }
    const double threshold = frame->maxY - 1.0 - margin;
    if (threshold < location.y) {
        const double limit = frame->minY + 1.0;
        event->setLocation({location.x, threshold <= limit ? limit : threshold});
    }
    return event;
}

} // namespace

EventPathFloor makeFloor(const DockGuardController& controller, const UserDefaults& defaults) {
    if (controller.screensCache().size() > EventPathFloor::Capacity) {
        fatal("The floor has no room for that many displays.");
    }
    EventPathFloor floor;
    floor.defaults = &defaults;
    for (const ManagedScreen& screen : controller.screensCache()) {
        floor.frames[floor.displayCount] = screen.cgFrame.edges();
        floor.identifiers[floor.displayCount] = screen.uuid;
        ++floor.displayCount;
    }
    if (controller.pinnedScreen()) {
        floor.hasPinned = true;
        floor.pinnedIdentifier = controller.pinnedScreen()->uuid;
    }
    return floor;
}

Event* floorHandleEvent(const EventPathFloor& floor, Event* event) { return decide(floor, event); }

Event* floorTapCallback(EventTapProxy*, EventType type, Event* event, void* userInfo) noexcept {
    if (userInfo == nullptr || type == EventType::tapDisabledByTimeout ||
        type == EventType::tapDisabledByUserInput) {
        return event;
    }
    return decide(*static_cast<const EventPathFloor*>(userInfo), event);
}

} // namespace kestrune::benchmarks
