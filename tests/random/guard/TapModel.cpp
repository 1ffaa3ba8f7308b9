#include "tests/random/guard/TapModel.h"

#include <algorithm>

namespace kestrune::simulate {

void TapModel::mainThreadStalled(sim::Duration now, sim::Duration duration) {
    mainThreadFreeAt_ = std::max(mainThreadFreeAt_, now + duration);
}

void TapModel::mainThreadFreed(sim::Duration now) {
    if (noticePending_ && now >= mainThreadFreeAt_) {
        // The guard switches its tap on again as soon as it hears of it.
        noticePending_ = false;
        enabled_ = true;
    }
}

void TapModel::switchedOff(sim::Duration now) {
    if (enabled_) {
        enabled_ = false;
        noticePending_ = true;
    }
    mainThreadFreed(now);
}

TapModel::Reply TapModel::eventArrived(sim::Duration now, bool tapsAllowed) {
    if (!enabled_) {
        mainThreadFreed(now);
        return {false, sim::Duration::zero()};
    }
    const sim::Duration wait = std::max(mainThreadFreeAt_ - now, sim::Duration::zero());
    if (tapsAllowed && wait < sim::Session::TapTimeout) {
        return {true, wait};
    }
    switchedOff(now + sim::Session::TapTimeout);
    return {false, sim::Session::TapTimeout};
}

} // namespace kestrune::simulate
