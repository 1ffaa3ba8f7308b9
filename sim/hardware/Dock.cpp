#include "sim/hardware/Dock.h"

namespace kestrune::sim {

namespace {

constexpr double EdgeDepth = 1.0;

} // namespace

Dock::Dock(const Displays& displays, Duration dwell) : displays_(displays), dwell_(dwell) {
    displaysChanged();
}

void Dock::place(DisplayID displayID) {
    display_ = displayID;
    pushedDisplay_.reset();
}

void Dock::pointerArrived(Point location, double deltaY, Duration now) {
    const Display* attractor = attractorAt(location);
    if (attractor == nullptr || pushedDisplay_ != attractor->displayID) {
        pushedDisplay_.reset();
    }
    if (attractor == nullptr || deltaY <= 0) {
        return;
    }
    if (!pushedDisplay_) {
        pushedDisplay_ = attractor->displayID;
        pushedSince_ = now;
    }
    if (now - pushedSince_ >= dwell_) {
        place(attractor->displayID);
        ++moves_;
    }
}

void Dock::displaysChanged() {
    pushedDisplay_.reset();
    if (display_ && displays_.withID(*display_) != nullptr) {
        return;
    }
    const auto& connected = displays_.connected();
    display_ = connected.empty() ? std::nullopt : std::optional(connected.front().displayID);
}

const Display* Dock::attractorAt(Point location) const {
    const Display* display = displays_.containing(location);
    if (display == nullptr || display->displayID == display_ ||
        location.y < display->bounds.maxY() - EdgeDepth) {
        return nullptr;
    }
    const Point below{location.x, display->bounds.maxY()};
    return displays_.containing(below) == nullptr ? display : nullptr;
}

} // namespace kestrune::sim
