// Switches that are clicked by a message, which GNUstep leaves to a cell that they do not have.
//
// This is what we believe the Mac does, and no proof of it: the switch changes sides, then its target is
// told.
#include "tests/gnustep/standins/appkit/SwitchClicks.h"

#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

void performClick(id control, SEL, id /*sender*/) {
    const bool isOn = send<mac::Integer>(control, "state") != 0;
    send<void>(control, "setState:", mac::Integer{isOn ? 0 : 1});
    send<BOOL>(control, "sendAction:to:", send<SEL>(control, "action"), send(control, "target"));
}

} // namespace

void installSwitchClicks() { replaceMethod(classNamed("NSSwitch"), "performClick:", performClick); }

} // namespace kestrune::gnustep
