// How windows behave in spaces.
#pragma once

namespace kestrune::gnustep {

void installCollectionBehavior();

} // namespace kestrune::gnustep
