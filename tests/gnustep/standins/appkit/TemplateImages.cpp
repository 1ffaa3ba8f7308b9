// The template flag of an image, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: the flag belongs to the image object.
#include "tests/gnustep/standins/appkit/TemplateImages.h"

#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <unordered_set>

namespace kestrune::gnustep {

namespace {

std::unordered_set<id>& templates() {
    static auto& images = *new std::unordered_set<id>;
    return images;
}

void setTemplate(id image, SEL, BOOL isTemplate) {
    if (isTemplate == 0) {
        templates().erase(image);
        return;
    }
    templates().insert(image);
    whenDeallocated(image, &templates(), [image] { templates().erase(image); });
}

BOOL isTemplate(id image, SEL) { return mac::truth(templates().contains(image)); }

} // namespace

void installTemplateImages() {
    addMethod(classNamed("NSImage"), "setTemplate:", setTemplate);
    addMethod(classNamed("NSImage"), "isTemplate", isTemplate);
}

} // namespace kestrune::gnustep
