// The system's colours. GNUstep has no names for some, and for others those of another look.
//
// This is what we believe the Mac has in its light appearance, with the blue accent, and no proof of it.
#include "tests/gnustep/standins/SystemColors.h"

#include "tests/gnustep/standins/Methods.h"

namespace kestrune::gnustep {

namespace {

id color(double red, double green, double blue, double alpha) {
    return send(classObject("NSColor"), "colorWithCalibratedRed:green:blue:alpha:", red / 255, green / 255,
                blue / 255, alpha);
}

id labelColor(id, SEL) { return color(0, 0, 0, 0.85); }
id secondaryLabelColor(id, SEL) { return color(0, 0, 0, 0.5); }
id tertiaryLabelColor(id, SEL) { return color(0, 0, 0, 0.26); }
id quaternaryLabelColor(id, SEL) { return color(0, 0, 0, 0.1); }
id controlAccentColor(id, SEL) { return color(0, 122, 255, 1); }
id systemGreenColor(id, SEL) { return color(40, 205, 65, 1); }
id linkColor(id, SEL) { return color(0, 104, 218, 1); }
id separatorColor(id, SEL) { return color(0, 0, 0, 0.1); }
id windowBackgroundColor(id, SEL) { return color(236, 236, 236, 1); }

} // namespace

void installSystemColors() {
    const Class colors = classOf(classNamed("NSColor"));
    addMethod(colors, "controlAccentColor", controlAccentColor);
    addMethod(colors, "linkColor", linkColor);
    addMethod(colors, "separatorColor", separatorColor);
    replaceMethod(colors, "labelColor", labelColor);
    replaceMethod(colors, "secondaryLabelColor", secondaryLabelColor);
    replaceMethod(colors, "tertiaryLabelColor", tertiaryLabelColor);
    replaceMethod(colors, "quaternaryLabelColor", quaternaryLabelColor);
    replaceMethod(colors, "systemGreenColor", systemGreenColor);
    replaceMethod(colors, "windowBackgroundColor", windowBackgroundColor);
}

} // namespace kestrune::gnustep
