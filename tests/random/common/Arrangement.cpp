#include "tests/random/common/Arrangement.h"

#include <algorithm>
#include <utility>

namespace kestrune::simulate {

namespace {

Point beside(const Rect& neighbour, const Placement& placement) {
    switch (placement.side) {
    case Side::right:
        return {neighbour.maxX(), neighbour.minY() + placement.shift};
    case Side::left:
        return {neighbour.minX() - placement.size.width, neighbour.minY() + placement.shift};
    case Side::above:
        return {neighbour.minX() + placement.shift, neighbour.minY() - placement.size.height};
    case Side::below:
        return {neighbour.minX() + placement.shift, neighbour.maxY()};
    case Side::onTop:
        break;
    }
    return {neighbour.minX() + placement.shift, neighbour.minY() + placement.shift};
}

Point rightOfAll(const std::vector<Rect>& standing) {
    double rightmost = 0;
    for (const Rect& bounds : standing) {
        rightmost = std::max(rightmost, bounds.maxX());
    }
    return {rightmost, 0};
}

} // namespace

Rect place(const Placement& placement, const std::vector<Rect>& standing) {
    const Size& size = placement.size;
    if (standing.empty()) {
        return {0, 0, size.width, size.height};
    }
    const Point origin = beside(standing[placement.neighbour % standing.size()], placement);
    const Rect wanted{origin.x, origin.y, size.width, size.height};
    const bool hasRoom = std::none_of(standing.begin(), standing.end(),
                                      [&](const Rect& other) { return overlap(wanted, other); });
    if (hasRoom || placement.side == Side::onTop) {
        return wanted;
    }
    const Point free = rightOfAll(standing);
    return {free.x, free.y, size.width, size.height};
}

sim::Display identify(Identity identity, DisplayID displayID, const Rect& bounds,
                      const std::vector<sim::Display>& connected) {
    sim::Display display = sim::makeDisplay(displayID, "Display " + std::to_string(displayID), bounds);
    switch (identity) {
    case Identity::ordinary:
        break;
    case Identity::withoutUUID:
        display.uuid.reset();
        break;
    case Identity::twin:
        display.uuid = connected.empty() ? display.uuid : connected.front().uuid;
        break;
    case Identity::withoutNumber:
        display.screenNumber.reset();
        break;
    case Identity::negativeNumber:
        display.screenNumber = -std::int64_t{displayID};
        break;
    case Identity::fractionalNumber:
        display.screenNumber = displayID + 0.5;
        break;
    case Identity::textNumber:
        display.screenNumber = std::to_string(displayID);
        break;
    case Identity::realNumber:
        display.screenNumber = static_cast<double>(displayID);
        break;
    case Identity::tooLargeNumber:
        display.screenNumber = (std::int64_t{1} << 32) + displayID;
        break;
    case Identity::unknownNumber:
        display.screenNumber = 1'000'000 + std::int64_t{displayID};
        break;
    case Identity::firstNumber:
        display.screenNumber = connected.empty() ? display.screenNumber : connected.front().screenNumber;
        break;
    }
    return display;
}

std::vector<sim::Display> arrange(const std::vector<PlannedDisplay>& plan, DisplayID firstID) {
    std::vector<sim::Display> displays;
    for (const PlannedDisplay& planned : plan) {
        const Rect bounds = place(planned.placement, boundsOf(displays));
        const DisplayID displayID = firstID + static_cast<DisplayID>(displays.size());
        displays.push_back(identify(planned.identity, displayID, bounds, displays));
    }
    return displays;
}

void putPrimaryAtOrigin(std::vector<sim::Display>& displays) {
    if (displays.empty()) {
        return;
    }
    const Point origin = displays.front().bounds.origin;
    for (sim::Display& display : displays) {
        display.bounds.origin.x -= origin.x;
        display.bounds.origin.y -= origin.y;
    }
}

std::vector<Rect> boundsOf(const std::vector<sim::Display>& displays) {
    std::vector<Rect> bounds;
    bounds.reserve(displays.size());
    for (const sim::Display& display : displays) {
        bounds.push_back(display.bounds);
    }
    return bounds;
}

bool overlap(const Rect& one, const Rect& other) {
    return one.minX() < other.maxX() && other.minX() < one.maxX() && one.minY() < other.maxY() &&
           other.minY() < one.maxY();
}

} // namespace kestrune::simulate
