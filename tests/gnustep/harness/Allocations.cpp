#include "tests/gnustep/harness/Allocations.h"

#include "tests/gnustep/harness/Send.h"

// NOLINTBEGIN(readability-identifier-naming): the names are GNUstep's.
// Source: GNUstepBase, NSDebug.h.
extern "C" {
BOOL GSDebugAllocationActive(BOOL active);
Class* GSDebugAllocationClassList();
int GSDebugAllocationCount(Class type);
}
// NOLINTEND(readability-identifier-naming)

namespace kestrune::gnustep {

void countAllocations() { GSDebugAllocationActive(mac::truth(true)); }

AllocatedObjects allocatedObjects() {
    AllocatedObjects objects;
    // GNUstep frees the list itself; it ends with a null.
    for (const Class* type = GSDebugAllocationClassList(); *type != nullptr; ++type) {
        objects.emplace(class_getName(*type), GSDebugAllocationCount(*type));
    }
    return objects;
}

std::vector<std::string> growth(const AllocatedObjects& before, const AllocatedObjects& after) {
    std::vector<std::string> grown;
    for (const auto& [name, count] : after) {
        const auto former = before.find(name);
        const int formerCount = former != before.end() ? former->second : 0;
        if (count > formerCount) {
            grown.push_back(name + ": " + std::to_string(count - formerCount) + " more");
        }
    }
    return grown;
}

} // namespace kestrune::gnustep
