#include "desk/replay/Judge.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kestrune::desk {

namespace {

// A frame's trip through AppKit's upside-down coordinates may cost its last digits.
constexpr double Tolerance = 1e-6;

std::optional<std::size_t> displayUnder(Point point, const std::vector<Rect>& displays) {
    for (std::size_t index = 0; index < displays.size(); ++index) {
        const Rect& bounds = displays[index];
        const bool inColumn = bounds.origin.x <= point.x && point.x < bounds.origin.x + bounds.size.width;
        const bool inRow = bounds.origin.y <= point.y && point.y < bounds.origin.y + bounds.size.height;
        if (inColumn && inRow) {
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
    const Rect& bounds = desk.displays[*under];
    const double bottom = bounds.origin.y + bounds.size.height;
    const double lowestFree = bottom - 1 - desk.margin;
    if (delivery.sent.y <= lowestFree - Tolerance) {
        return !unchanged;
    }
    const double held = std::max(lowestFree, bounds.origin.y + 1);
    const bool isHeld = std::abs(delivery.delivered.y - held) <= Tolerance;
    const bool onTheEdge = delivery.sent.y <= lowestFree + Tolerance;
    return delivery.delivered.x != delivery.sent.x || !(isHeld || (onTheEdge && unchanged));
}

} // namespace kestrune::desk
