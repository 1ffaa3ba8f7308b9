// A timer that is invalidated lets go of its block at once; GNUstep's keeps it as long as somebody keeps the
// timer.
//
// This is what we believe the Mac does, and no proof of it, though NSTimer.h says so of a timer's target.
#include "tests/gnustep/standins/runtime/TimerBlocks.h"

#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <utility>

namespace kestrune::gnustep {

namespace {

Method<void> invalidateBefore = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

id& blockOf(id timer) {
    const Ivar variable = class_getInstanceVariable(classNamed("NSTimer"), "_block");
    if (variable == nullptr) {
        fatal("GNUstep's timer has no variable for its block.");
    }
    return *reinterpret_cast<id*>(reinterpret_cast<char*>(timer) + ivar_getOffset(variable));
}

void invalidate(id timer, SEL selector) {
    invalidateBefore(timer, selector);
    mac::foundation.object.release(std::exchange(blockOf(timer), nullptr));
}

} // namespace

void installTimerBlocks() {
    invalidateBefore = replaceMethod(classNamed("NSTimer"), "invalidate", invalidate);
}

} // namespace kestrune::gnustep
