// The frames that a program may set. GNUstep keeps all of a window on the screen.
//
// This is what we believe the Mac does, and no proof of it: a window may reach below the screen, but not
// above its top.
#include "tests/gnustep/standins/appkit/WindowFrames.h"

#include "base/Geometry.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <algorithm>

namespace kestrune::gnustep {

namespace {

Rect constrainFrameRect(id, SEL, Rect frame, id screen) {
    const double top = send<Rect>(screen, "visibleFrame").maxY();
    frame.origin.y -= std::max(0.0, frame.maxY() - top);
    return frame;
}

} // namespace

void installWindowFrames() {
    replaceMethod(classNamed("NSWindow"), "constrainFrameRect:toScreen:", constrainFrameRect);
}

} // namespace kestrune::gnustep
