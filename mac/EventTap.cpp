#include "platform/EventTap.h"

#include "base/Fatal.h"
#include "mac/RunLoopState.h"
#include "mac/c/Quartz.h"
#include "mac/objc/Pool.h"

#include <algorithm>
#include <list>
#include <utility>

namespace kestrune {

namespace {

// Whom a tap calls.
struct Listener {
    EventTapCallback callback;
    void* userInfo;

    friend bool operator==(const Listener&, const Listener&) = default;
};

// Kept for ever, because nobody says when a tap has called for the last time; there are few, as one that
// listens again is found again. In a list, so that each stays where it is.
Listener* lastingListener(const Listener& listener) {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    static std::list<Listener>& listeners = *new std::list<Listener>;
    const auto known = std::find(listeners.begin(), listeners.end(), listener);
    return known != listeners.end() ? &*known : &listeners.emplace_back(listener);
}

// With a pool, as the run loop promises none around the callbacks of its ports: what the callback's calls
// leave behind would otherwise pile up until AppKit's next event, which in an application without windows may
// be hours away.
Event* callListener(EventTapProxy* proxy, EventType type, Event* event, void* listener) noexcept {
    const mac::Pool pool;
    const auto [callback, userInfo] = *static_cast<const Listener*>(listener);
    return callback(proxy, type, event, userInfo);
}

} // namespace

struct EventTap::State {
    explicit State(CFMachPortRef created) : port(created) {}

    mac::CFOwned<CFMachPortRef> port;
};

EventTap::EventTap(std::shared_ptr<State> state) : state_(std::move(state)) {}

std::optional<EventTap> EventTap::create(EventTapLocation location, EventTapPlacement placement,
                                         EventTapOptions options, EventMask eventsOfInterest,
                                         EventTapCallback callback, void* userInfo) {
    const CFMachPortRef port = CGEventTapCreate(location, placement, options, eventsOfInterest, callListener,
                                                lastingListener({callback, userInfo}));
    return port != nullptr ? std::optional(EventTap(std::make_shared<State>(port))) : std::nullopt;
}

void EventTap::enable(bool enabled) const { CGEventTapEnable(state_->port.get(), enabled); }

RunLoopSource EventTap::createRunLoopSource(std::intptr_t order) const {
    const CFRunLoopSourceRef source =
        CFMachPortCreateRunLoopSource(kCFAllocatorDefault, state_->port.get(), order);
    if (source == nullptr) {
        fatal("The port of an event tap that was just made is not valid.");
    }
    return RunLoopSource(std::make_shared<RunLoopSource::State>(source));
}

} // namespace kestrune
