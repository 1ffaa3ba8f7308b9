// Upper case in the user's language.
#pragma once

namespace kestrune::gnustep {

void installLocalizedCase();

} // namespace kestrune::gnustep
