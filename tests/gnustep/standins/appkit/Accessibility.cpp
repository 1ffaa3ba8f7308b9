// The properties by which a view tells VoiceOver what it is, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: each view and each cell has its own, and cells
// and controls are read out unless it is said otherwise.
#include "tests/gnustep/standins/appkit/Accessibility.h"

#include "mac/objc/Text.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <optional>
#include <unordered_map>

namespace kestrune::gnustep {

namespace {

struct Properties {
    std::string label;
    std::optional<bool> isElement; // absent: nobody said so
};

// Of views and cells.
std::unordered_map<id, Properties>& everyone() {
    static auto& properties = *new std::unordered_map<id, Properties>;
    return properties;
}

Properties& propertiesOf(id object) {
    whenDeallocated(object, &everyone(), [object] { everyone().erase(object); });
    return everyone()[object];
}

Properties known(id object) {
    const auto entry = everyone().find(object);
    return entry != everyone().end() ? entry->second : Properties();
}

void setAccessibilityLabel(id object, SEL, id label) { propertiesOf(object).label = mac::textOf(label); }

void setAccessibilityElement(id object, SEL, BOOL isElement) {
    propertiesOf(object).isElement = isElement != 0;
}

id labelOf(id object, SEL) { return objectFor(known(object).label); }

// Unless it was said otherwise, cells and controls are elements and other views are not.
BOOL isReadOut(id object, SEL) {
    const bool isOtherView = send<BOOL>(object, "isKindOfClass:", classNamed("NSView")) != 0 &&
                             send<BOOL>(object, "isKindOfClass:", classNamed("NSControl")) == 0;
    return mac::truth(known(object).isElement.value_or(!isOtherView));
}

} // namespace

void installAccessibility() {
    for (const char* const name : {"NSView", "NSCell"}) {
        addMethod(classNamed(name), "setAccessibilityLabel:", setAccessibilityLabel);
        addMethod(classNamed(name), "setAccessibilityElement:", setAccessibilityElement);
        addMethod(classNamed(name), "accessibilityLabel", labelOf);
        addMethod(classNamed(name), "isAccessibilityElement", isReadOut);
    }
}

} // namespace kestrune::gnustep
