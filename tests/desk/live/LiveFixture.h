// Ways to play with a live desk.
#pragma once

#include "desk/live/world/LiveDesk.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace kestrune::desk {

// In which places the live desk's usual two displays can be pushed against: the middle of their bottom edges.
inline constexpr Point BuiltInEdge{756, 982};
inline constexpr Point Display2Edge{2472, 982};

// A hand that goes to an edge and keeps pushing for much longer than the Dock waits.
inline void push(LiveDesk& desk, Point edge, EventType type = EventType::mouseMoved) {
    desk.movePointerTowards({edge.x, edge.y - 200}, type);
    for (int step = 0; step < 40; ++step) {
        desk.advance(std::chrono::milliseconds(10));
        desk.movePointerTowards({edge.x, edge.y + 30}, type);
    }
}

inline std::vector<std::string> namesOfDisplays(LiveDesk& desk) {
    std::vector<std::string> names;
    for (const sim::Display& display : desk.session().displays().connected()) {
        names.push_back(display.localizedName);
    }
    return names;
}

inline std::vector<Rect> boundsOfDisplays(LiveDesk& desk) {
    std::vector<Rect> bounds;
    for (const sim::Display& display : desk.session().displays().connected()) {
        bounds.push_back(display.bounds);
    }
    return bounds;
}

// What is stored under a key, as text; empty when nothing is.
inline std::string storedText(LiveDesk& desk, std::string_view key) {
    const sim::PropertyList* stored = desk.session().defaults().find(key);
    return stored != nullptr ? stored->asString().value_or("") : "";
}

inline LiveDeskSetup unguarded() {
    LiveDeskSetup setup;
    setup.guardOn = false;
    return setup;
}

} // namespace kestrune::desk
