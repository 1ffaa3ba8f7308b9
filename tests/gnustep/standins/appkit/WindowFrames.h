// Where a window's frame may lie.
#pragma once

namespace kestrune::gnustep {

void installWindowFrames();

} // namespace kestrune::gnustep
