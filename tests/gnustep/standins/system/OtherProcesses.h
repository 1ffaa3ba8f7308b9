// Other processes, which GNUstep would start and wait for.
#pragma once

namespace kestrune::gnustep {

void installOtherProcesses();

} // namespace kestrune::gnustep
