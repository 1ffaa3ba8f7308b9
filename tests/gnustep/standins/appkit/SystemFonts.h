// The system's font in its weights.
#pragma once

namespace kestrune::gnustep {

void installSystemFonts();

} // namespace kestrune::gnustep
