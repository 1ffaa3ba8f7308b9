// The motion of a hand that never rests: strokes all over the displays, many of which end in a push against a
// bottom edge, as when somebody reaches for the Dock.
#pragma once

#include "base/Geometry.h"
#include "replay/recording/SplitMix64.h"

#include <cstdint>
#include <vector>

namespace kestrune::benchmarks {

// Deterministic: the same displays and seed give the same motion. One step is one millisecond.
class RestlessPointer {
public:
    // `displays` are in global display coordinates, at least one.
    RestlessPointer(std::vector<Rect> displays, std::uint64_t seed);

    // How far the hand moves the pointer, which is at `pointer` now, in the next millisecond; in points,
    // y downwards.
    Point nextMovement(Point pointer);

private:
    void beginStroke(Point pointer);

    std::vector<Rect> displays_;
    replay::SplitMix64 random_;
    Point distance_;
    std::int64_t strokeLength_ = 0;
    std::int64_t strokeStep_ = 0;
    double progress_ = 0;
    std::int64_t pushesLeft_ = 0;
    double drift_ = 0;
};

} // namespace kestrune::benchmarks
