// The blocks of timers.
#pragma once

namespace kestrune::gnustep {

void installTimerBlocks();

} // namespace kestrune::gnustep
