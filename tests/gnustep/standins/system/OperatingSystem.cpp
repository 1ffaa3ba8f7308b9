// The version of the system, which GNUstep's NSProcessInfo cannot tell in numbers. A structure of three
// numbers is returned as the Mac returns it, in memory of the caller's.
#include "tests/gnustep/standins/system/OperatingSystem.h"

#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

OperatingSystemVersion operatingSystemVersion(id, SEL) { return SystemVersion; }

} // namespace

void installOperatingSystem() {
    addMethod(classNamed("NSProcessInfo"), "operatingSystemVersion", operatingSystemVersion);
}

} // namespace kestrune::gnustep
