#include "tests/mac/Accessibility.h"

#include "mac/objc/Text.h"
#include "tests/mac/Send.h"

namespace kestrune::native {

namespace {

// A control that has a cell is represented by that, whatever is said of the view.
id representativeOf(id view) {
    const bool isControl = send<BOOL>(view, "isKindOfClass:", classNamed("NSControl")) != 0;
    const id cell = isControl ? send(view, "cell") : nullptr;
    return cell != nullptr ? cell : view;
}

} // namespace

std::string accessibilityLabel(id view) {
    return mac::textOf(send(representativeOf(view), "accessibilityLabel"));
}

bool isAccessibilityElement(id view) {
    return send<BOOL>(representativeOf(view), "isAccessibilityElement") != 0;
}

} // namespace kestrune::native
