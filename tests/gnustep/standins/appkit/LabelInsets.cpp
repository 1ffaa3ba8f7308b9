// The room between a label's edges and its text, which GNUstep's labels do not have.
//
// This is what we believe the Mac does, and no proof of it: a text field without a bezel keeps its text 2
// points away from its left and right edges.
#include "tests/gnustep/standins/appkit/LabelInsets.h"

#include "base/Geometry.h"
#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

constexpr double Inset = 2; // points

using DrawInterior = Method<void, Rect, id>;

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
DrawInterior drawInteriorOfGNUstep = nullptr;

void drawInterior(id cell, SEL selector, Rect frame, id view) {
    if (send<BOOL>(cell, "isBezeled") == 0) {
        frame.origin.x += Inset;
        frame.size.width -= 2 * Inset;
    }
    drawInteriorOfGNUstep(cell, selector, frame, view);
}

} // namespace

void installLabelInsets() {
    drawInteriorOfGNUstep =
        replaceMethod(classNamed("NSTextFieldCell"), "drawInteriorWithFrame:inView:", drawInterior);
}

} // namespace kestrune::gnustep
