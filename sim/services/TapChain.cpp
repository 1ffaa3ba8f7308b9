#include "sim/services/TapChain.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

namespace {

bool holdsUp(const Tap& tap, EventType type) {
    return tap.options == EventTapOptions::defaultTap && tap.receives(type);
}

void switchOff(Tap& tap, EventType reason) {
    tap.enabled = false;
    tap.pendingNotice = reason;
}

} // namespace

void TapChain::add(const std::shared_ptr<Tap>& tap) {
    std::erase_if(taps_, [](const std::weak_ptr<Tap>& candidate) { return candidate.expired(); });
    const auto position = std::find_if(taps_.begin(), taps_.end(), [&](const std::weak_ptr<Tap>& candidate) {
        const EventTapLocation location = candidate.lock()->location;
        return tap->placement == EventTapPlacement::headInsert ? location >= tap->location
                                                               : location > tap->location;
    });
    taps_.insert(position, tap);
    if (addObserver_) {
        addObserver_(*tap);
    }
}

TapVerdict TapChain::deliver(PointerEvent& event) {
    TapVerdict verdict;
    Event* current = &event;
    // The tap is held while its callback runs, so `add` does not take its place in the list away meanwhile.
    for (const std::weak_ptr<Tap>& candidate : taps_) {
        const std::shared_ptr<Tap> tap = candidate.lock();
        if (!tap || !tap->receives(event.type)) {
            continue;
        }
        if (tap->options == EventTapOptions::listenOnly) {
            PointerEvent copy(event.type, static_cast<PointerEvent*>(current)->location);
            tap->callback(nullptr, event.type, &copy, tap->userInfo);
            continue;
        }
        Event* returned = tap->callback(nullptr, event.type, current, tap->userInfo);
        if (returned == nullptr) {
            verdict.swallowed = true;
            return verdict;
        }
        verdict.replaced = verdict.replaced || returned != current;
        current = returned;
    }
    if (verdict.replaced) {
        event.location = static_cast<PointerEvent*>(current)->location;
    }
    return verdict;
}

bool TapChain::waitsFor(EventType type) const {
    return std::any_of(taps_.begin(), taps_.end(), [type](const std::weak_ptr<Tap>& candidate) {
        const std::shared_ptr<Tap> tap = candidate.lock();
        return tap && holdsUp(*tap, type);
    });
}

void TapChain::disableAll(EventType reason) {
    for (const std::weak_ptr<Tap>& candidate : taps_) {
        const std::shared_ptr<Tap> tap = candidate.lock();
        if (tap && tap->enabled && tap->scheduled) {
            switchOff(*tap, reason);
        }
    }
}

void TapChain::timeOut(EventType type) {
    for (const std::weak_ptr<Tap>& candidate : taps_) {
        const std::shared_ptr<Tap> tap = candidate.lock();
        if (tap && holdsUp(*tap, type)) {
            switchOff(*tap, EventType::tapDisabledByTimeout);
        }
    }
}

void TapChain::notify() {
    for (const std::weak_ptr<Tap>& candidate : taps_) {
        const std::shared_ptr<Tap> tap = candidate.lock();
        if (!tap || !tap->scheduled || !tap->pendingNotice) {
            continue;
        }
        const EventType reason = *std::exchange(tap->pendingNotice, std::nullopt);
        PointerEvent notice(reason, {});
        tap->callback(nullptr, reason, &notice, tap->userInfo);
    }
}

// Their places stay until the next `add`, because a callback on the way of an event may end the process.
void TapChain::clear() {
    for (std::weak_ptr<Tap>& tap : taps_) {
        tap.reset();
    }
}

std::size_t TapChain::count() const {
    return static_cast<std::size_t>(std::count_if(
        taps_.begin(), taps_.end(), [](const auto& candidate) { return !candidate.expired(); }));
}

std::size_t TapChain::enabledCount() const {
    return static_cast<std::size_t>(std::count_if(taps_.begin(), taps_.end(), [](const auto& candidate) {
        const std::shared_ptr<Tap> tap = candidate.lock();
        return tap && tap->enabled;
    }));
}

} // namespace kestrune::sim
