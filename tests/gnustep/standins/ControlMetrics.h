// The sizes of controls.
#pragma once

namespace kestrune::gnustep {

void installControlMetrics();

} // namespace kestrune::gnustep
