// The colours that a Mac names.
#pragma once

namespace kestrune::gnustep {

void installSystemColors();

} // namespace kestrune::gnustep
