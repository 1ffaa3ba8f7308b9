// What goes wrong at the simulated Mac, as long as it does.
#pragma once

#include <optional>
#include <string>

namespace kestrune::sim {

// Each is asked for by the service that it befalls, and is set by sim/session/Faults.h, which says what it
// means.
struct StandingFaults {
    bool delaysTrust = false;
    bool refusesTapCreation = false;
    bool refusesActivation = false;
    bool refusesOpeningURLs = false;
    bool refusesURLs = false;
    bool withholdsStatusButtons = false;
    std::optional<std::string> loginItemRefusal;
};

} // namespace kestrune::sim
