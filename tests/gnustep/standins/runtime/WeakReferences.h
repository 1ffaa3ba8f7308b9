// The properties that the Mac declares weak.
#pragma once

namespace kestrune::gnustep {

void installWeakReferences();

} // namespace kestrune::gnustep
