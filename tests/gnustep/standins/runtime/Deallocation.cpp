// GNUstep's runtime has no weak references, so whoever stands in for one hears here when an object goes.
#include "tests/gnustep/standins/runtime/Deallocation.h"

#include "tests/gnustep/standins/runtime/Methods.h"

#include <map>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace kestrune::gnustep {

namespace {

using Reactions = std::map<const void*, std::function<void()>>;

// Objects may go on any thread.
struct Watched {
    std::mutex mutex;
    std::unordered_map<id, Reactions> reactions; // By object.
};

// Never destroyed, as objects go until the process ends.
Watched& watched() {
    static Watched& objects = *new Watched;
    return objects;
}

Reactions take(id object) {
    const std::lock_guard lock(watched().mutex);
    auto node = watched().reactions.extract(object);
    return node ? std::move(node.mapped()) : Reactions();
}

Method<void> deallocBefore = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void dealloc(id object, SEL selector) {
    for (const auto& [owner, reaction] : take(object)) {
        reaction();
    }
    deallocBefore(object, selector);
}

} // namespace

void installDeallocation() { deallocBefore = replaceMethod(classNamed("NSObject"), "dealloc", dealloc); }

void whenDeallocated(id object, const void* owner, std::function<void()> reaction) {
    const std::lock_guard lock(watched().mutex);
    watched().reactions[object].insert_or_assign(owner, std::move(reaction));
}

void forgetDeallocation(id object, const void* owner) {
    const std::lock_guard lock(watched().mutex);
    const auto entry = watched().reactions.find(object);
    if (entry != watched().reactions.end()) {
        entry->second.erase(owner);
    }
}

} // namespace kestrune::gnustep
