// kestrune-callback-cost [--quick]: what the tap's callback costs through the real binding and GNUstep's own
// NSUserDefaults, against the same messages sent by hand, in one run. Exit status 1 when the callback costs
// too much, allocates or decides otherwise.
#include "benchmarks/gnustep/CallbackFloor.h"
#include "benchmarks/gnustep/CallbackTimes.h"
#include "benchmarks/gnustep/GuardedTap.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/StandIns.h"

#include <array>
#include <cstdio>

namespace kestrune::benchmarks {
namespace {

using gnustep::TapListener;

constexpr double LargestRatio = 1.05;

CallbackFloor makeFloor(bool hasPool) {
    CallbackFloor floor;
    floor.defaults = mac::Retained::retaining(mac::foundation.userDefaults.standardUserDefaults());
    floor.isEnabledKey = mac::nsString(Preferences::IsEnabledKey.name());
    floor.blockMarginKey = mac::nsString(Preferences::BlockMarginKey.name());
    floor.width = DisplayWidth;
    floor.height = DisplayHeight;
    floor.hasPool = hasPool;
    return floor;
}

// Whether the callback is as it should be in this situation; prints its figures.
bool measure(const Situation& situation, const Effort& effort, bool hasLimit) {
    CallbackFloor floor = makeFloor(true);
    CallbackFloor floorWithoutPool = makeFloor(false);
    const std::array<TapListener, 3> callbacks = {TapListener{floorCallback, &floorWithoutPool},
                                                  TapListener{floorCallback, &floor}, firstTap()};
    const auto& callback = callbacks[2];
    const bool agrees = handled(callback, situation.location) == handled(callbacks[1], situation.location);
    const bool isAllocating = allocates(callback, situation.location);
    const auto times = fastestTimes(callbacks, situation.location, effort);
    const double ratio = times[2] / times[1];
    std::printf("%-28s floor %7.1f ns (%7.1f ns without a pool), callback %7.1f ns, ratio %.3f%s%s\n",
                situation.name, times[1], times[0], times[2], ratio,
                isAllocating ? ", ALLOCATES" : ", 0 allocations", agrees ? "" : ", DECIDES OTHERWISE");
    return agrees && !isAllocating && (!hasLimit || ratio <= LargestRatio);
}

bool measureAll(bool isQuick) {
    const mac::Pool pool;
    gnustep::installStandIns();
    makeSession();
    GuardedTap session;
    bool isGood = true;
    for (const Situation& situation : Situations) {
        session.storeIsEnabled(situation.isEnabledStored);
        isGood = measure(situation, isQuick ? Quick : Full, !isQuick) && isGood;
    }
    return isGood;
}

} // namespace
} // namespace kestrune::benchmarks

int main(int count, char** arguments) {
    return kestrune::benchmarks::runMeasurement(count, arguments, kestrune::benchmarks::measureAll);
}
