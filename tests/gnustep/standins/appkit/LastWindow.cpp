// The end of the last window, with which an application goes on Windows. GNUstep does so where its menus are
// those of Windows, as they are in the process's test.
//
// This is what the Mac's NSApplication.h says, and no proof of it: an application stays unless its delegate
// wants it to go.
#include "tests/gnustep/standins/appkit/LastWindow.h"

#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

void stay(id, SEL) {}

} // namespace

void installLastWindow() { replaceMethod(classNamed("NSApplication"), "_lastWindowClosed", stay); }

} // namespace kestrune::gnustep
