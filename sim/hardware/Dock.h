// The Dock, which follows macOS's own rules and knows nothing of the application.
//
// Source: docs/MAC_FACTS.md, "How the Dock changes display". How long a push must last is not documented.
#pragma once

#include "base/Geometry.h"
#include "sim/hardware/Displays.h"
#include "sim/hardware/VirtualClock.h"

#include <cstdint>
#include <optional>

namespace kestrune::sim {

// It looks at where the pointer is after the taps had their say. When the pointer stays in the last point
// above the bottom edge of another display, with nothing below that edge, and keeps being pushed down for the
// dwell time, the Dock moves to that display.
class Dock {
public:
    static constexpr Duration DefaultDwell = std::chrono::milliseconds(200);

    // `displays` must outlive the Dock. It starts on the primary display.
    Dock(const Displays& displays, Duration dwell);

    // The display that has the Dock; absent only while no display is connected.
    std::optional<DisplayID> display() const { return display_; }

    // How often the pointer has pulled the Dock to another display.
    std::uint64_t moves() const { return moves_; }

    // Puts the Dock on a display; this is no move.
    void place(DisplayID displayID);

    // The pointer arrived at `location` (global display coordinates) at `now`; `deltaY` is the movement that
    // the hardware reported, in points, positive downwards.
    void pointerArrived(Point location, double deltaY, Duration now);

    // The Dock leaves a display that was disconnected for the primary one; this is no move.
    void displaysChanged();

private:
    // The other display whose bottom edge can pull the Dock from here.
    const Display* attractorAt(Point location) const;

    const Displays& displays_;
    Duration dwell_;
    std::optional<DisplayID> display_;
    std::uint64_t moves_ = 0;
    std::optional<DisplayID> pushedDisplay_;
    Duration pushedSince_{0};
};

} // namespace kestrune::sim
