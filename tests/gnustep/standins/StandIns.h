// Everything that stands in for the Mac on GNUstep.
#pragma once

namespace kestrune::gnustep {

// Once for the process, before the first NSApplication. What is plain C stands in from the start.
void installStandIns();

} // namespace kestrune::gnustep
