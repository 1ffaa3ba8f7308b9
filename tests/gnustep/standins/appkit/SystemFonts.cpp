// The system's font by its weight, which GNUstep lacks: it has a plain one and a bold one.
//
// This is what we believe the Mac does, and no proof of it: there is a font for every size and weight. Inter
// stands in for it where it is installed.
#include "tests/gnustep/standins/appkit/SystemFonts.h"

#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Methods.h"

namespace kestrune::gnustep {

namespace {

constexpr double Semibold = 0.3; // NSFontWeightSemibold

struct Weight {
    double upTo; // an NSFontWeight
    const char* font;
};

constexpr Weight Weights[] = {
    {-0.7, "Inter-Thin"},   {-0.5, "Inter-ExtraLight"}, {-0.2, "Inter-Light"},
    {0.1, "Inter-Regular"}, {0.26, "Inter-Medium"},     {0.35, "Inter-SemiBold"},
    {0.5, "Inter-Bold"},    {0.59, "Inter-ExtraBold"},  {1, "Inter-Black"},
};

const char* fontOf(double weight) {
    for (const Weight& candidate : Weights) {
        if (weight <= candidate.upTo) {
            return candidate.font;
        }
    }
    return "Inter-Black";
}

id systemFontOfSize(id fonts, SEL, double size, double weight) {
    const id font = send(fonts, "fontWithName:size:", objectFor(fontOf(weight)), size);
    return font != nullptr
               ? font
               : send(fonts, weight < Semibold ? "systemFontOfSize:" : "boldSystemFontOfSize:", size);
}

} // namespace

void installSystemFonts() {
    addMethod(classOf(classNamed("NSFont")), "systemFontOfSize:weight:", systemFontOfSize);
}

} // namespace kestrune::gnustep
