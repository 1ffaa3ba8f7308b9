// What becomes of the application when its last window has been closed.
#pragma once

namespace kestrune::gnustep {

void installLastWindow();

} // namespace kestrune::gnustep
