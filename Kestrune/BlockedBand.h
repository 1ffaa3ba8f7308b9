// The band above a display's bottom edge that the pointer must not enter, lest macOS move the Dock there.
#pragma once

#include "base/Geometry.h"

namespace kestrune {

// A pure decision in global display coordinates (y downwards), in points.
class BlockedBand {
public:
    // `margin` is the band's depth and greater than 0.
    constexpr BlockedBand(const Rect& cgFrame, double margin)
        : threshold_(cgFrame.maxY() - EdgeInset - margin), limit_(cgFrame.minY() + EdgeInset) {}

    // The lowest position above the band; positions beyond it are blocked.
    constexpr double threshold() const { return threshold_; }

    // Whether a position lies strictly beyond the threshold.
    constexpr bool blocks(double y) const { return threshold_ < y; }

    // Where a blocked pointer is held: at the threshold, but never higher than one point below the top edge,
    // so that the pointer stays on a display that is shorter than the band.
    constexpr double heldY() const { return threshold_ <= limit_ ? limit_ : threshold_; }

private:
    static constexpr double EdgeInset = 1.0;

    double threshold_;
    double limit_;
};

} // namespace kestrune
