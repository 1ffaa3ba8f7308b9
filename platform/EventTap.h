// A Quartz event tap: a callback in the stream of the session's events.
//
// Source: CoreGraphics, CGEvent.h, CGEventTypes.h; CoreFoundation, CFMachPort.h.
#pragma once

#include "platform/Event.h"
#include "platform/RunLoop.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace kestrune {

// CGEventTapLocation: where events are tapped.
enum class EventTapLocation : std::uint32_t {
    hid = 0,              // as they enter the window server
    session = 1,          // as they enter the login session
    annotatedSession = 2, // when they are addressed to an application
};

// CGEventTapPlacement: where among the taps of one location. The most recent head insert is called first.
enum class EventTapPlacement : std::uint32_t { headInsert = 0, tailAppend = 1 };

// CGEventTapOptions: an active filter may change events and holds each one up until its callback returns.
enum class EventTapOptions : std::uint32_t { defaultTap = 0, listenOnly = 1 };

// CGEventTapProxy, opaque.
struct EventTapProxy;

// CGEventTapCallBack. Called on the thread whose run loop holds the tap's source. `event` is borrowed;
// returning it passes it on, returning null deletes it. For the two tap-disabled types the returned value is
// ignored.
using EventTapCallback = Event* (*)(EventTapProxy* proxy, EventType type, Event* event,
                                    void* userInfo) noexcept;

// A retained CFMachPortRef of an event tap. The tap ends with its last reference; a run-loop source made from
// it is one.
class EventTap {
public:
    // CGEventTapCreate. Absent when the system refuses, as it does without the Accessibility permission. The
    // tap is enabled but delivers nothing before its source is on a run loop. `userInfo` is handed to every
    // call of `callback` and must outlive the tap.
    static std::optional<EventTap> create(EventTapLocation location, EventTapPlacement placement,
                                          EventTapOptions options, EventMask eventsOfInterest,
                                          EventTapCallback callback, void* userInfo);

    // CGEventTapEnable.
    void enable(bool enabled) const;

    // CFMachPortCreateRunLoopSource with the default allocator.
    RunLoopSource createRunLoopSource(std::intptr_t order) const;

private:
    struct State;
    explicit EventTap(std::shared_ptr<State> state);

    std::shared_ptr<State> state_;
};

} // namespace kestrune
