// The application of the stories as it is built for a Mac.
#include "tests/gnustep/mach/SuspendedProgram.h"
#include "tests/gnustep/standins/system/CrashReporter.h"
#include "tests/scenarios/LaunchedApplication.h"

namespace kestrune::scenarios {

struct LaunchedApplication::State {};

LaunchedApplication::LaunchedApplication(contract::World& world) {
    gnustep::lookForCrashReportIn([] { return macho::sectionOfProgram("__crash_info"); });
    world.launch(
        [] { gnustep::launchProgram(gnustep::programForMacs(), macho::MessageChecks::structureReturns); });
    world.runMainQueue();
}

// A process has one story here, and ends with it.
LaunchedApplication::~LaunchedApplication() = default;

} // namespace kestrune::scenarios
