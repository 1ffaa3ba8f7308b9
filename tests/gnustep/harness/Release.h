// Which GNUstep the tests run on. A newer one has more of the Mac's methods, and other differences to it.
#pragma once

namespace kestrune::gnustep {

// Of its AppKit, without the zero in front: 29 for 0.29, which Debian 12 has, 32 for 0.32 of Debian 13.
int release();

} // namespace kestrune::gnustep
