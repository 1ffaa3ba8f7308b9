// The activation policy, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: every change is granted.
#include "tests/gnustep/standins/appkit/ActivationPolicy.h"

#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

ActivationPolicy current =
    ActivationPolicy::regular; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

BOOL setActivationPolicy(id, SEL, mac::Integer policy) {
    current = static_cast<ActivationPolicy>(policy);
    return mac::truth(true);
}

mac::Integer currentPolicy(id, SEL) { return static_cast<mac::Integer>(current); }

} // namespace

void installActivationPolicy() {
    addMethod(classNamed("NSApplication"), "setActivationPolicy:", setActivationPolicy);
    addMethod(classNamed("NSApplication"), "activationPolicy", currentPolicy);
}

ActivationPolicy activationPolicy() { return current; }

void resetActivationPolicy() { current = ActivationPolicy::regular; }

} // namespace kestrune::gnustep
