// A window's behaviour in spaces. GNUstep takes it and forgets it.
//
// This is what we believe the Mac does, and no proof of it: it belongs to the window.
#include "tests/gnustep/standins/appkit/CollectionBehavior.h"

#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <unordered_map>

namespace kestrune::gnustep {

namespace {

std::unordered_map<id, mac::Unsigned>& behaviors() {
    static auto& ofWindows = *new std::unordered_map<id, mac::Unsigned>;
    return ofWindows;
}

void setCollectionBehavior(id window, SEL, mac::Unsigned behavior) {
    behaviors()[window] = behavior;
    whenDeallocated(window, &behaviors(), [window] { behaviors().erase(window); });
}

mac::Unsigned collectionBehavior(id window, SEL) {
    const auto entry = behaviors().find(window);
    return entry != behaviors().end() ? entry->second : 0;
}

} // namespace

void installCollectionBehavior() {
    replaceMethod(classNamed("NSWindow"), "setCollectionBehavior:", setCollectionBehavior);
    replaceMethod(classNamed("NSWindow"), "collectionBehavior", collectionBehavior);
}

} // namespace kestrune::gnustep
