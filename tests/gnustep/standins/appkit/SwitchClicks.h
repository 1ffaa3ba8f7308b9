// Switches that are clicked by a message.
#pragma once

namespace kestrune::gnustep {

void installSwitchClicks();

} // namespace kestrune::gnustep
