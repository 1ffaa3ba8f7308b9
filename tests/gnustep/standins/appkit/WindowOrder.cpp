// The order of the windows. Without a window manager the X server's is not what GNUstep goes by, which then
// takes the windows in the order in which they were made.
//
// This is what we believe the Mac does, and no proof of it: a window lies in front of those of a lower level
// and of those of its level that were ordered front before it.
#include "tests/gnustep/standins/appkit/WindowOrder.h"

#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <algorithm>
#include <vector>

// NOLINTNEXTLINE(readability-identifier-naming): the name is GNUstep's.
extern "C" id GSCurrentServer();

namespace kestrune::gnustep {

namespace {

// GNUstep's NSWindowOrderingMode, which has other numbers than the Mac's.
constexpr unsigned Above = 0;
constexpr unsigned OrderedOut = 2;

// Not retained; the one that was ordered front last is first.
std::vector<id>& ordered() {
    static std::vector<id> windows;
    return windows;
}

void takeOut(id window) { std::erase(ordered(), window); }

id windowList(id, SEL) {
    std::vector<id> windows = ordered();
    std::stable_sort(windows.begin(), windows.end(), [](id one, id other) {
        return send<mac::Integer>(one, "level") > send<mac::Integer>(other, "level");
    });
    const id list = send(classObject("NSMutableArray"), "array");
    for (const id window : windows) {
        send<void>(list, "addObject:", objectFor(std::int64_t{send<mac::Integer>(window, "windowNumber")}));
    }
    return list;
}

using OrderWindow = Method<void, unsigned, mac::Integer>;

OrderWindow orderWindowOfGNUstep = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void note(id window, unsigned place) {
    // Its class is known when the application has it.
    static const auto before = replaceMethod(object_getClass(GSCurrentServer()), "windowlist", windowList);
    static_cast<void>(before);
    takeOut(window);
    whenDeallocated(window, &ordered(), [window] { takeOut(window); });
    ordered().insert(place == Above ? ordered().begin() : ordered().end(), window);
}

// One that goes out is in the list until it is out: GNUstep gives the keys to the next one after it.
void orderAndNote(id window, SEL selector, unsigned place, mac::Integer other) {
    if (place != OrderedOut) {
        note(window, place);
    }
    orderWindowOfGNUstep(window, selector, place, other);
    if (place == OrderedOut) {
        takeOut(window);
    }
}

} // namespace

void installWindowOrder() {
    orderWindowOfGNUstep = replaceMethod(classNamed("NSWindow"), "orderWindow:relativeTo:", orderAndNote);
}

} // namespace kestrune::gnustep
