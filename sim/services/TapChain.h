// The event taps of a session in the order in which they see an event.
//
// Source: docs/MAC_FACTS.md, "Event taps".
#pragma once

#include "sim/hardware/PointerEvent.h"
#include "sim/services/Tap.h"

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <utility>

namespace kestrune::sim {

// What became of an event on its way through the taps.
struct TapVerdict {
    bool swallowed = false; // a tap returned null
    bool replaced = false;  // a tap returned another event
};

class TapChain {
public:
    // Taps of one location are called from the most recent head insert to the most recent tail append;
    // locations from HID over session to annotated session. The chain ends a tap's membership with the tap.
    void add(const std::shared_ptr<Tap>& tap);

    // Called with each tap that is added, also with one that is never scheduled.
    void onAdd(std::function<void(const Tap&)> observer) { addObserver_ = std::move(observer); }

    // Hands `event` to each tap that receives it, and a copy to those that only listen. A callback may add,
    // disable and remove taps.
    TapVerdict deliver(PointerEvent& event);

    // Whether an active tap would hold up an event of that type until it replies.
    bool waitsFor(EventType type) const;

    // The system switches every enabled, scheduled tap off; the application is told at the next `notify`.
    void disableAll(EventType reason);

    // The same for the active taps that an event of that type has waited for in vain.
    void timeOut(EventType type);

    // Tells the application which of its taps were switched off. Whatever a callback returns is ignored.
    void notify();

    // The application's process has ended, and its taps with it.
    void clear();

    // The taps that exist, and of those the enabled ones.
    std::size_t count() const;
    std::size_t enabledCount() const;

private:
    // A list, because a callback may add a tap while an event is on its way along them.
    std::list<std::weak_ptr<Tap>> taps_;
    std::function<void(const Tap&)> addObserver_;
};

} // namespace kestrune::sim
