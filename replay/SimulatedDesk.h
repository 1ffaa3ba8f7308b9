// A simulated session with the application on it, set up from the options of the command line.
#pragma once

#include "base/Geometry.h"
#include "replay/ApplicationHost.h"
#include "replay/Judge.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace kestrune::replay {

struct DeskSetup {
    std::vector<Rect> displays; // global display coordinates, the primary first; at least one
    std::size_t pinned = 0;     // index into `displays`
    bool guardOn = true;
    std::optional<double> margin; // what is stored as the block margin, if anything
};

// Displays with the names that macOS would give them.
std::vector<sim::Display> connectDisplays(const std::vector<Rect>& bounds);

// The session with the permission granted, the application and the Dock, which starts on the pinned display.
class SimulatedDesk {
public:
    explicit SimulatedDesk(const DeskSetup& setup);

    sim::Session& session() { return session_; }
    ApplicationHost& host() { return host_; }

    // The setup as the judge sees it.
    const JudgedDesk& judged() const { return judged_; }

    // The display with the Dock, as an index into the setup's displays.
    std::size_t dockDisplay();

private:
    JudgedDesk judged_;
    sim::Session session_;
    ApplicationHost host_;
};

} // namespace kestrune::replay
