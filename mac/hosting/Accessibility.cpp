#include "mac/hosting/Accessibility.h"

#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

// Nil for a view that is no control, and for a control that does without.
id cellOf(id view) {
    const bool isControl = foundation.object.isKindOfClass(view, appKit.control.find()) != 0;
    return isControl ? appKit.control.cell(view) : nullptr;
}

} // namespace

void setAccessibilityElement(id view, bool isElement) {
    appKit.view.setAccessibilityElement(view, truth(isElement));
    appKit.cell.setAccessibilityElement(cellOf(view), truth(isElement));
}

void setAccessibilityLabel(id view, std::string_view label) {
    const Retained text = nsString(label);
    appKit.view.setAccessibilityLabel(view, text.get());
    appKit.cell.setAccessibilityLabel(cellOf(view), text.get());
}

} // namespace kestrune::mac
