// SF Symbols.
#pragma once

namespace kestrune::gnustep {

void installSymbols();

} // namespace kestrune::gnustep
