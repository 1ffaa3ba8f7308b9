// Methods of NSView's that GNUstep lacks and never calls, for what overrides them to be held against.
//
// That the Mac's views have them with these encodings is what we believe, and no proof of it.
//
// Source: NSView.h.
#include "tests/gnustep/standins/appkit/FocusRing.h"

#include "base/Geometry.h"
#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

void drawFocusRingMask(id, SEL) {}

Rect focusRingMaskBounds(id, SEL) { return {}; }

BOOL wantsUpdateLayer(id, SEL) { return mac::truth(false); }

} // namespace

// With the encodings that Apple's compiler gives them.
void installFocusRing() {
    const Class view = classNamed("NSView");
    const auto add = [view](const char* selector, IMP implementation, const char* encoding) {
        class_addMethod(view, sel_registerName(selector), implementation, encoding);
    };
    add("drawFocusRingMask", mac::asImplementation(drawFocusRingMask), "v16@0:8");
    add("focusRingMaskBounds", mac::asImplementation(focusRingMaskBounds),
        "{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8");
    add("wantsUpdateLayer", mac::asImplementation(wantsUpdateLayer), "B16@0:8");
}

} // namespace kestrune::gnustep
