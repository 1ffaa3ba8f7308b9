// What the application must do, worked out from its rules a second time and without its code: the judge of
// the simulated sessions and of the properties.
#pragma once

#include "base/Geometry.h"
#include "replay/GuardRule.h"
#include "sim/hardware/Displays.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::simulate {

// A display as the application must know it.
struct KnownDisplay {
    std::string identifier;
    std::uint32_t number;
    std::string name;
    Rect bounds; // global display coordinates
};

// What a refresh must come to.
struct Resolution {
    std::vector<KnownDisplay> displays;
    std::optional<KnownDisplay> pinned;

    // Whether the stored choice is written, and with what; an absent text removes the entry.
    bool writes = false;
    std::optional<std::string> written;
};

// The displays that the application must list, in order; uses up readings of the system's list, as it does.
std::vector<KnownDisplay> enumerateDisplays(sim::Displays& system);

// The identifier of the main display; absent when there is none or it has no usable number.
std::optional<std::string> mainIdentifier(const sim::Displays& system);

// Uses up readings, as the refresh does. `storedChoice` is what stringForKey: answers.
Resolution resolve(sim::Displays& system, const std::optional<std::string>& storedChoice);

// The same for a copy of what the system knows at the moment of the refresh, whose readings are still unused
// afterwards.
Resolution expectedResolution(sim::Displays system, const std::optional<std::string>& storedChoice);

// All that the decision about an event depends on.
struct GuardModel {
    std::vector<KnownDisplay> displays;
    std::optional<KnownDisplay> pinned;
    bool enabled = true;

    // What doubleForKey: answers for the margin.
    double storedMargin = 0;

    replay::JudgedDesk judged() const;
};

} // namespace kestrune::simulate
