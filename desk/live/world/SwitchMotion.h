// The knob of a switch on its way from one side to the other, by the hand or by itself.
//
// Positions go from 0, off, to 1, on.
#pragma once

#include "base/Geometry.h"
#include "sim/hardware/VirtualClock.h"

#include <optional>

namespace kestrune::desk {

// A hand at the knob. Before it has moved a little it may still mean a click.
class SwitchGrip {
public:
    // Where the hand is, and how far the knob goes, in points.
    SwitchGrip(bool isOn, Point hand, double travel) : start_(isOn ? 1 : 0), hold_(hand), travel_(travel) {}

    void follow(Point hand);

    bool isDragged() const { return isDragged_; }
    double position() const { return position_.value_or(start_); }

    // The side on which the knob is let go.
    bool isOnSide() const { return position() >= 0.5; }

private:
    double start_;
    Point hold_;
    double travel_;
    bool isDragged_ = false;
    std::optional<double> position_;
};

// The knob slides to its side, quickly at first.
class SwitchSlide {
public:
    static constexpr sim::Duration Length = std::chrono::milliseconds(180);

    // `start` is the session's time.
    SwitchSlide(double from, bool isOn, sim::Duration start)
        : from_(from), to_(isOn ? 1 : 0), start_(start) {}

    // Absent once the knob is there.
    std::optional<double> position(sim::Duration now) const;

private:
    double from_;
    double to_;
    sim::Duration start_;
};

} // namespace kestrune::desk
