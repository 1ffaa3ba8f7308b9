#include "sim/hardware/Arrangement.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrune::sim {

namespace {

using DisplayList = std::vector<Display>;

void move(Rect& bounds, double deltaX, double deltaY) {
    bounds.origin.x += deltaX;
    bounds.origin.y += deltaY;
}

void startAtPrimary(DisplayList& displays) {
    if (displays.empty()) {
        return;
    }
    const Point origin = displays.front().bounds.origin;
    for (Display& display : displays) {
        move(display.bounds, -origin.x, -origin.y);
    }
}

bool overlap(const Rect& one, const Rect& other) {
    return one.minX() < other.maxX() && other.minX() < one.maxX() && one.minY() < other.maxY() &&
           other.minY() < one.maxY();
}

bool anyOverlap(const DisplayList& displays) {
    for (std::size_t one = 0; one < displays.size(); ++one) {
        for (std::size_t other = one + 1; other < displays.size(); ++other) {
            if (overlap(displays[one].bounds, displays[other].bounds)) {
                return true;
            }
        }
    }
    return false;
}

// Whether the pointer can go from one display straight to the other.
bool touch(const Rect& one, const Rect& other) {
    const bool shareRows = one.minY() < other.maxY() && other.minY() < one.maxY();
    const bool shareColumns = one.minX() < other.maxX() && other.minX() < one.maxX();
    const bool meetSideways = one.maxX() == other.minX() || other.maxX() == one.minX();
    const bool meetUpright = one.maxY() == other.minY() || other.maxY() == one.minY();
    return overlap(one, other) || (shareRows && meetSideways) || (shareColumns && meetUpright);
}

bool isConnected(const DisplayList& displays) {
    std::vector<std::size_t> reached;
    std::vector<bool> isReached(displays.size(), false);
    if (!displays.empty()) {
        reached.push_back(0);
        isReached[0] = true;
    }
    for (std::size_t next = 0; next < reached.size(); ++next) {
        for (std::size_t other = 0; other < displays.size(); ++other) {
            if (!isReached[other] && touch(displays[reached[next]].bounds, displays[other].bounds)) {
                isReached[other] = true;
                reached.push_back(other);
            }
        }
    }
    return reached.size() == displays.size();
}

DisplayList movedLeft(DisplayList displays, const Rect& gap) {
    for (Display& display : displays) {
        if (display.bounds.minX() >= gap.maxX()) {
            move(display.bounds, -gap.width(), 0);
        }
    }
    return displays;
}

DisplayList movedUp(DisplayList displays, const Rect& gap) {
    for (Display& display : displays) {
        if (display.bounds.minY() >= gap.maxY()) {
            move(display.bounds, 0, -gap.height());
        }
    }
    return displays;
}

// Leaves the displays alone when neither direction brings all of them together.
DisplayList closeGap(DisplayList displays, const Rect& gap) {
    if (isConnected(displays)) {
        return displays;
    }
    for (DisplayList& candidate : std::vector{movedLeft(displays, gap), movedUp(displays, gap)}) {
        if (isConnected(candidate) && !anyOverlap(candidate)) {
            return std::move(candidate);
        }
    }
    return displays;
}

} // namespace

std::vector<Display> withoutDisplay(std::vector<Display> displays, std::size_t removed) {
    const Rect gap = displays.at(removed).bounds;
    displays.erase(displays.begin() + static_cast<std::ptrdiff_t>(removed));
    displays = closeGap(std::move(displays), gap);
    startAtPrimary(displays);
    return displays;
}

std::vector<Display> withDisplayAtRight(std::vector<Display> displays, Display added) {
    added.bounds.origin = {0, 0};
    if (!displays.empty()) {
        const auto rightmost =
            std::max_element(displays.begin(), displays.end(), [](const Display& one, const Display& other) {
                return one.bounds.maxX() < other.bounds.maxX();
            });
        const Rect& neighbour = rightmost->bounds;
        const double middle = neighbour.minY() + neighbour.height() / 2;
        added.bounds.origin = {neighbour.maxX(), std::round(middle - added.bounds.height() / 2)};
    }
    displays.push_back(std::move(added));
    return displays;
}

} // namespace kestrune::sim
