#include "replay/Judge.h"

#include <cmath>
#include <optional>

namespace kestrune::replay {

namespace {

// A frame's trip through AppKit's upside-down coordinates may cost its last digits.
constexpr double Tolerance = 1e-6;

std::optional<std::size_t> displayUnder(Point point, const std::vector<Rect>& displays) {
    for (std::size_t index = 0; index < displays.size(); ++index) {
        if (isOn(displays[index], point)) {
            return index;
        }
    }
    return std::nullopt;
}

} // namespace

bool violatesTheRule(const JudgedDesk& desk, const sim::Delivery& delivery) {
    const bool unchanged = delivery.delivered == delivery.sent;
    const std::optional<std::size_t> under = displayUnder(delivery.sent, desk.displays);
    const bool mayHold = desk.guardOn && desk.displays.size() >= 2 && under && *under != desk.pinned;
    if (!mayHold) {
        return !unchanged;
    }
    const JudgedBand band(desk.displays[*under], desk.margin);
    if (delivery.sent.y <= band.lowestFree - Tolerance) {
        return !unchanged;
    }
    const bool isHeld = std::abs(delivery.delivered.y - band.held) <= Tolerance;
    const bool onTheEdge = delivery.sent.y <= band.lowestFree + Tolerance;
    return delivery.delivered.x != delivery.sent.x || !(isHeld || (onTheEdge && unchanged));
}

} // namespace kestrune::replay
