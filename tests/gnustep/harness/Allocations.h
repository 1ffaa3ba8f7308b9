// How many objects of each class there are.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace kestrune::gnustep {

// By class, as GNUstep counts from `countAllocations` on. Below zero when older ones have gone since.
using AllocatedObjects = std::map<std::string, int>;

AllocatedObjects allocatedObjects();
void countAllocations();

// "NSMenu: 3 more" for each class with more objects than before.
std::vector<std::string> growth(const AllocatedObjects& before, const AllocatedObjects& after);

} // namespace kestrune::gnustep
