// What a test wants the platform to lack.
#pragma once

#include <string>

namespace kestrune::gnustep {

// A class, a protocol or a method that GNUstep has not, by its name: nothing stands in for it. To be said
// before there is a world.
void leaveOut(const std::string& name);

bool isLeftOut(const std::string& name);

} // namespace kestrune::gnustep
