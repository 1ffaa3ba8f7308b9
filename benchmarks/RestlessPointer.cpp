#include "benchmarks/RestlessPointer.h"

#include "base/Fatal.h"
#include "replay/recording/StrokeModel.h"

#include <cmath>
#include <utility>

namespace kestrune::benchmarks {

namespace {

constexpr double TargetWidth = 40;
constexpr double PushSpeed = 1.5; // points for each millisecond

// The pushes last from shorter to much longer than what it takes to move the Dock.
constexpr int ShortestPush = 50;
constexpr int LongestPush = 700;

} // namespace

RestlessPointer::RestlessPointer(std::vector<Rect> displays, std::uint64_t seed)
    : displays_(std::move(displays)), random_(seed) {
    if (displays_.empty()) {
        fatal("A hand needs a display to move over.");
    }
}

Point RestlessPointer::nextMovement(Point pointer) {
    if (strokeStep_ == strokeLength_) {
        if (pushesLeft_ > 0) {
            --pushesLeft_;
            return {drift_, PushSpeed};
        }
        beginStroke(pointer);
    }
    ++strokeStep_;
    const double before = progress_;
    progress_ =
        replay::minimumJerkProgress(static_cast<double>(strokeStep_) / static_cast<double>(strokeLength_));
    return {distance_.x * (progress_ - before), distance_.y * (progress_ - before)};
}

void RestlessPointer::beginStroke(Point pointer) {
    const Rect& display =
        displays_[static_cast<std::size_t>(random_.between(0, static_cast<int>(displays_.size()) - 1))];
    const bool pushes = random_.between(0, 1) == 1;
    const double across = random_.unit();
    const double down = pushes ? 1 : random_.unit();
    distance_ = {display.minX() + across * display.width() - pointer.x,
                 display.minY() + down * display.height() - pointer.y};
    // A square root is rounded alike everywhere, a hypotenuse is not.
    const double length = std::sqrt(distance_.x * distance_.x + distance_.y * distance_.y);
    strokeLength_ = replay::strokeDuration(replay::MousePointing, length, TargetWidth).count();
    strokeStep_ = 0;
    progress_ = 0;
    pushesLeft_ = pushes ? random_.between(ShortestPush, LongestPush) : 0;
    drift_ = random_.around(0.25);
}

} // namespace kestrune::benchmarks
