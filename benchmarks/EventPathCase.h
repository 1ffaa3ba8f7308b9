// The situations in which the event path is measured, and the loops that feed it events.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "Kestrune/Preferences.h"
#include "benchmarks/EventPathFloor.h"
#include "platform/UserDefaults.h"
#include "sim/hardware/PointerEvent.h"
#include "sim/session/Session.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::benchmarks {

// Where the pointer is. It is always on the last display, so that the walk over the displays is whole.
enum class Place {
    pinned,   // the last display is the pinned one
    unpinned, // another one is pinned, and the pointer is above the band
    blocked,  // another one is pinned, and the pointer is in the band
};

struct EventPathRow {
    std::size_t displayCount;
    Place place;
    bool isEnabledStored; // otherwise the entry is absent, as before the menu's switch was ever used

    // "16 displays, blocked", with ", isEnabled absent" where it is.
    std::string name() const;
};

// 1, 2, 4, 8 and 16 displays with "isEnabled" stored, then 2 and 16 without.
std::vector<EventPathRow> eventPathRows();

// Who handles the events of a loop.
enum class Handler {
    nobody,
    seamOnly, // makes the calls of the platform that the row takes, and nothing else
    floor,
    controller,
    floorCallback,
    controllerCallback,
};

inline constexpr std::array AllHandlers{Handler::nobody,        Handler::seamOnly,
                                        Handler::floor,         Handler::controller,
                                        Handler::floorCallback, Handler::controllerCallback};

// Those that decide where the pointer may be.
inline constexpr std::array Deciders{Handler::floor, Handler::controller, Handler::floorCallback,
                                     Handler::controllerCallback};

std::string_view nameOf(Handler handler);

// Makes the compiler assume that somebody reads and writes what `event` points to.
inline void escape(Event* event) {
    asm volatile("" : "+r"(event) : : "memory");
} // NOLINT(hicpp-no-assembler)

// A session with a guard and its floor in the situation of a row. As a session, there is one at a time.
class EventPathCase {
public:
    explicit EventPathCase(const EventPathRow& row);

    // Hands `handler` that many events, each made afresh at the place of the row, and nothing else.
    void feed(Handler handler, std::size_t events);

    // Where one of the deciders leaves one event at `location`.
    Point handled(Handler decider, Point location);

    // What the displays cover together, and the height of each; global display coordinates.
    Rect extent() const;
    double displayHeight() const;

private:
    Event* callSeam(Event* event) const;

    EventPathRow row_;
    sim::Session session_;
    std::shared_ptr<UserDefaults> defaults_;
    DockGuardController controller_;
    EventPathFloor floor_;
    Point location_;
};

} // namespace kestrune::benchmarks
