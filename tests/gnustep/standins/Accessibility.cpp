// The properties by which a view tells VoiceOver what it is, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: a control that has a cell is represented by that,
// whatever is said of the view, and every other view by itself.
#include "tests/gnustep/standins/Accessibility.h"

#include "mac/objc/Text.h"
#include "tests/gnustep/standins/Deallocation.h"
#include "tests/gnustep/standins/Methods.h"

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

bool isControl(id view) { return send<BOOL>(view, "isKindOfClass:", classNamed("NSControl")) != 0; }

id representativeOf(id view) {
    const id cell = isControl(view) ? send(view, "cell") : nullptr;
    return cell != nullptr ? cell : view;
}

void setAccessibilityLabel(id object, SEL, id label) { propertiesOf(object).label = mac::textOf(label); }

void setAccessibilityElement(id object, SEL, BOOL isElement) {
    propertiesOf(object).isElement = isElement != 0;
}

} // namespace

void installAccessibility() {
    for (const char* const name : {"NSView", "NSCell"}) {
        addMethod(classNamed(name), "setAccessibilityLabel:", setAccessibilityLabel);
        addMethod(classNamed(name), "setAccessibilityElement:", setAccessibilityElement);
    }
}

std::string accessibilityLabel(id view) { return known(representativeOf(view)).label; }

// A view that is no control stands for what is in it.
bool isAccessibilityElement(id view) {
    return known(representativeOf(view)).isElement.value_or(isControl(view));
}

} // namespace kestrune::gnustep
