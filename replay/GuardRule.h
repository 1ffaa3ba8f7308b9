// The guard's rule, worked out a second time without its code, for everybody in C++ who judges it.
#pragma once

#include "base/Geometry.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrune::replay {

// The depth of the band, in points, where none is stored that is greater than 0.
constexpr double UsualBlockMargin = 4;

constexpr double bandDepth(double storedMargin) { return storedMargin > 0 ? storedMargin : UsualBlockMargin; }

// Minimum edges are inside, maximum edges are not.
constexpr bool isOn(const Rect& display, Point point) {
    const bool inColumn = display.origin.x <= point.x && point.x < display.origin.x + display.size.width;
    const bool inRow = display.origin.y <= point.y && point.y < display.origin.y + display.size.height;
    return inColumn && inRow;
}

// At the bottom of a display, in global display coordinates. Where the display is too short for the whole
// band, the pointer is held below its top edge.
struct JudgedBand {
    constexpr JudgedBand(const Rect& display, double depth)
        : lowestFree(display.origin.y + display.size.height - 1 - depth),
          held(std::max(display.origin.y + 1, lowestFree)) {}

    double lowestFree; // y of a pointer that is further down is changed
    double held;       // to this one
};

struct JudgedDisplay {
    Rect bounds; // global display coordinates
    bool isPinned = false;
};

// All that the rule asks of displays and choices, for one pointer event.
struct JudgedDesk {
    std::vector<JudgedDisplay>
        displays;                     // as the application lists them, the first one that has a point counts
    bool guardOn = true;              // switched on, asked, and knows which display is pinned
    double margin = UsualBlockMargin; // depth of the blocked band in points, greater than 0
};

// Null when no display has the point.
inline const JudgedDisplay* displayUnder(const JudgedDesk& desk, Point point) {
    const auto first =
        std::find_if(desk.displays.begin(), desk.displays.end(),
                     [point](const JudgedDisplay& display) { return isOn(display.bounds, point); });
    return first != desk.displays.end() ? &*first : nullptr;
}

// The band of the display under the point; absent where nothing may change.
inline std::optional<JudgedBand> guardedBandUnder(const JudgedDesk& desk, Point point) {
    const JudgedDisplay* const display = displayUnder(desk, point);
    if (!desk.guardOn || desk.displays.size() < 2 || display == nullptr || display->isPinned) {
        return std::nullopt;
    }
    return JudgedBand(display->bounds, desk.margin);
}

// Where an event that is sent to `sent` has to arrive.
inline Point expectedLocation(const JudgedDesk& desk, Point sent) {
    const std::optional<JudgedBand> band = guardedBandUnder(desk, sent);
    return band && sent.y > band->lowestFree ? Point{sent.x, band->held} : sent;
}

} // namespace kestrune::replay
