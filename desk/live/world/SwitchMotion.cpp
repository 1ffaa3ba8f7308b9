#include "desk/live/world/SwitchMotion.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {

void SwitchGrip::follow(Point hand) {
    constexpr double SmallestDrag = 3;
    const double way = hand.x - hold_.x;
    isDragged_ = isDragged_ || std::abs(way) >= SmallestDrag;
    if (isDragged_) {
        position_ = std::clamp(start_ + way / travel_, 0.0, 1.0);
    }
}

std::optional<double> SwitchSlide::position(sim::Duration now) const {
    if (now - start_ >= Length) {
        return std::nullopt;
    }
    const double rest = 1 - static_cast<double>((now - start_).count()) / static_cast<double>(Length.count());
    return to_ + (from_ - to_) * rest * rest * rest;
}

} // namespace kestrune::desk
