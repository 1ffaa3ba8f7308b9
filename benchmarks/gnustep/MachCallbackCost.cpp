// kestrune-mach-callback-cost [--quick]: what the tap's callback of the program that is built for Macs costs,
// against that of the same application as it is compiled here, in turns in one process. Exit status 1 when it
// costs too much or decides otherwise.
#include "benchmarks/gnustep/CallbackTimes.h"
#include "benchmarks/gnustep/GuardedTap.h"
#include "mac/objc/Pool.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/mach/SuspendedProgram.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/gnustep/standins/system/MainBundle.h"
#include "tests/gnustep/standins/system/RunningApplication.h"
#include "tests/scenarios/ShippedBundle.h"

#include <array>
#include <cstdio>

namespace kestrune::benchmarks {
namespace {

using gnustep::TapListener;

constexpr double LargestRatio = 1.10;

bool measure(const TapListener& mach, const TapListener& linked, const Situation& situation,
             const Effort& effort, bool hasLimit) {
    const bool agrees = handled(mach, situation.location) == handled(linked, situation.location);
    const auto times = fastestTimes(std::array{linked, mach}, situation.location, effort);
    const double ratio = times[1] / times[0];
    std::printf("%-28s compiled here %7.1f ns, for Macs %7.1f ns, ratio %.3f%s\n", situation.name, times[0],
                times[1], ratio, agrees ? "" : ", DECIDES OTHERWISE");
    return agrees && (!hasLimit || ratio <= LargestRatio);
}

bool measureAll(bool isQuick) {
    const mac::Pool pool;
    gnustep::installStandIns();
    gnustep::setMainBundle(scenarios::shippedBundle(), gnustep::privateHome());
    makeSession();
    gnustep::runUntilLaunched(
        [] { gnustep::launchProgram(gnustep::programForMacs(), macho::MessageChecks::none); });
    const TapListener mach = firstTap();
    // Its tap stands before the program's.
    GuardedTap session;
    const TapListener linked = firstTap();
    bool isGood = true;
    for (const Situation& situation : Situations) {
        session.storeIsEnabled(situation.isEnabledStored);
        isGood = measure(mach, linked, situation, isQuick ? Quick : Full, !isQuick) && isGood;
    }
    return isGood;
}

} // namespace
} // namespace kestrune::benchmarks

int main(int count, char** arguments) {
    return kestrune::benchmarks::runMeasurement(count, arguments, kestrune::benchmarks::measureAll);
}
