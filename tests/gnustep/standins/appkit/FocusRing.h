// What views are asked for the ring around the one that has the focus, and for their layer.
#pragma once

namespace kestrune::gnustep {

void installFocusRing();

} // namespace kestrune::gnustep
