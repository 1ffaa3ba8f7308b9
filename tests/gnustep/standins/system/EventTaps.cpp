// Quartz event taps.
//
// This is what we believe the Mac does, and no proof of it: an active tap needs the Accessibility permission;
// events go from the hardware over the session to the application, at each place through the head inserts
// from the latest on and then through the tail appends; a tap sees the types in its mask while it is enabled
// and its source on the run loop; one that only listens is shown a copy; a tap that is switched off is told
// so, whatever its mask; and a tap ends with the last reference to its port.
#include "tests/gnustep/standins/system/EventTaps.h"

#include "mac/c/Quartz.h"
#include "mac/objc/Retained.h"
#include "tests/gnustep/standins/runtime/Subclass.h"
#include "tests/gnustep/standins/system/AccessibilityTrust.h"
#include "tests/gnustep/standins/system/CoreFoundation.h"
#include "tests/gnustep/standins/system/RunLoopSources.h"

#include <algorithm>
#include <vector>

namespace kestrune::gnustep {

namespace {

struct Tap {
    EventTapLocation location;
    EventTapOptions options;
    EventMask mask;
    EventTapCallback callback;
    void* userInfo;
    bool isEnabled = true;
};

// The ports that are alive, in the order in which they see an event; not retained.
std::vector<id>& chain() {
    static std::vector<id> ports;
    return ports;
}

// Takes its port out of the chain when it ends.
struct Port {
    Tap tap;
    id instance = nullptr;

    ~Port() { std::erase(chain(), instance); }
};

const Subclass<Port>& ports() {
    static const Subclass<Port> type("KestruneCFMachPort");
    return type;
}

Tap& tapOf(id port) { return Subclass<Port>::of(port).tap; }

// Taps may come and go while the event is on its way.
std::vector<mac::Retained> chainNow() {
    std::vector<mac::Retained> retained;
    for (const id port : chain()) {
        retained.push_back(mac::Retained::retaining(port));
    }
    return retained;
}

bool isActive(id port) { return tapOf(port).isEnabled && servesPort(port); }

void insert(id port, EventTapPlacement placement) {
    const EventTapLocation location = tapOf(port).location;
    const auto position = std::find_if(chain().begin(), chain().end(), [&](id other) {
        return placement == EventTapPlacement::headInsert ? tapOf(other).location >= location
                                                          : tapOf(other).location > location;
    });
    chain().insert(position, port);
}

} // namespace

std::optional<TapListener> firstTapListener() {
    if (chain().empty()) {
        return std::nullopt;
    }
    const Tap& tap = tapOf(chain().front());
    return TapListener{tap.callback, tap.userInfo};
}

std::optional<contract::DeliveredEvent> postEvent(EventType type, Point location) {
    PostedEvent posted(type, location);
    Event* event = &posted;
    for (const mac::Retained& port : chainNow()) {
        const Tap tap = tapOf(port.get());
        if (!isActive(port.get()) || (tap.mask & eventMaskBit(type)) == 0) {
            continue;
        }
        if (tap.options == EventTapOptions::listenOnly) {
            PostedEvent copy(type, static_cast<const PostedEvent&>(*event).location);
            tap.callback(nullptr, type, &copy, tap.userInfo);
            continue;
        }
        event = tap.callback(nullptr, type, event, tap.userInfo);
        if (event == nullptr) {
            return std::nullopt;
        }
    }
    const auto& last = static_cast<const PostedEvent&>(*event);
    return contract::DeliveredEvent{last.type, last.location, event != &posted};
}

void switchTapsOff(EventType reason) {
    for (const mac::Retained& port : chainNow()) {
        if (isActive(port.get())) {
            tapOf(port.get()).isEnabled = false;
            PostedEvent notice(reason, {});
            const Tap tap = tapOf(port.get());
            tap.callback(nullptr, reason, &notice, tap.userInfo);
        }
    }
}

extern "C" {

CFMachPortRef CGEventTapCreate(EventTapLocation location, EventTapPlacement placement,
                               EventTapOptions options, EventMask eventsOfInterest, EventTapCallback callback,
                               void* userInfo) {
    if (options == EventTapOptions::defaultTap && !mayHaveActiveTap()) {
        return nullptr;
    }
    const id port = ports().make(Tap{location, options, eventsOfInterest, callback, userInfo});
    Subclass<Port>::of(port).instance = port;
    insert(port, placement);
    return reinterpret_cast<CFMachPortRef>(port);
}

void CGEventTapEnable(CFMachPortRef tap, bool enable) { tapOf(objectOf(tap)).isEnabled = enable; }

CGPoint CGEventGetLocation(const Event* event) {
    const Point location = static_cast<const PostedEvent*>(event)->location;
    return {location.x, location.y};
}

void CGEventSetLocation(CGEventRef event, CGPoint location) {
    static_cast<PostedEvent*>(event)->location = {location.x, location.y};
}

} // extern "C"

} // namespace kestrune::gnustep
