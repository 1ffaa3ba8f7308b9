#include "replay/Judge.h"

#include <cmath>
#include <optional>

namespace kestrune::replay {

namespace {

// A frame's trip through AppKit's upside-down coordinates may cost its last digits.
constexpr double Tolerance = 1e-6;

} // namespace

// As `expectedLocation` has it, but for that tolerance.
bool violatesTheRule(const JudgedDesk& desk, const sim::Delivery& delivery) {
    const bool unchanged = delivery.delivered == delivery.sent;
    const std::optional<JudgedBand> band = guardedBandUnder(desk, delivery.sent);
    if (!band || delivery.sent.y <= band->lowestFree - Tolerance) {
        return !unchanged;
    }
    const bool isHeld = std::abs(delivery.delivered.y - band->held) <= Tolerance;
    const bool onTheEdge = delivery.sent.y <= band->lowestFree + Tolerance;
    return delivery.delivered.x != delivery.sent.x || !(isHeld || (onTheEdge && unchanged));
}

} // namespace kestrune::replay
