// The properties by which a view tells VoiceOver what it is, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: they belong to the view.
#include "tests/gnustep/standins/Accessibility.h"

#include "mac/objc/Text.h"
#include "tests/gnustep/standins/Deallocation.h"
#include "tests/gnustep/standins/Methods.h"

#include <unordered_map>

namespace kestrune::gnustep {

namespace {

struct Properties {
    std::string label;
    bool isElement = true;
};

std::unordered_map<id, Properties>& views() {
    static auto& properties = *new std::unordered_map<id, Properties>;
    return properties;
}

Properties& propertiesOf(id view) {
    whenDeallocated(view, &views(), [view] { views().erase(view); });
    return views()[view];
}

Properties known(id view) {
    const auto entry = views().find(view);
    return entry != views().end() ? entry->second : Properties();
}

void setAccessibilityLabel(id view, SEL, id label) { propertiesOf(view).label = mac::textOf(label); }

void setAccessibilityElement(id view, SEL, BOOL isElement) { propertiesOf(view).isElement = isElement != 0; }

} // namespace

void installAccessibility() {
    addMethod(classNamed("NSView"), "setAccessibilityLabel:", setAccessibilityLabel);
    addMethod(classNamed("NSView"), "setAccessibilityElement:", setAccessibilityElement);
}

std::string accessibilityLabel(id view) { return known(view).label; }

bool isAccessibilityElement(id view) { return known(view).isElement; }

} // namespace kestrune::gnustep
