// How many objects of each class there are.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace kestrune::gnustep {

using AllocatedObjects = std::map<std::string, std::size_t>;

// By class, as GNUstep counts from `countAllocations` on.
AllocatedObjects allocatedObjects();
void countAllocations();

// "NSMenu: 3 more" for each class with more objects than before.
std::vector<std::string> growth(const AllocatedObjects& before, const AllocatedObjects& after);

} // namespace kestrune::gnustep
