// Where GNUstep does otherwise than the Mac.
#pragma once

namespace kestrune::gnustep {

// Judges the tests that ran, and GoogleTest's own verdict on them: each must pass, but for those in which
// GNUstep is known to differ. These must fail, at nothing but the expression that is known; then the list is
// still true. Tells what is not as it should be.
bool ranAsKnown(int status);

} // namespace kestrune::gnustep
