#include "mac/hosting/ButtonView.h"

#include "mac/Vocabulary.h"
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/ButtonSettings.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Actions.h"

namespace kestrune::mac {

namespace {

// As characters of key equivalents.
const char* keyOf(ui::KeyboardShortcut shortcut) {
    switch (shortcut) {
    case ui::KeyboardShortcut::defaultAction:
        return "\r";
    case ui::KeyboardShortcut::cancelAction:
        return "\x1b";
    case ui::KeyboardShortcut::none:
        break;
    }
    return "";
}

} // namespace

void ButtonView::connect(id target) {
    appKit.control.setTarget(view(), target);
    appKit.control.setAction(view(), actions::pressButton.selector());
}

void ButtonView::update(const ui::ButtonElement& next) {
    if (differs(next, &ui::ButtonElement::title)) {
        appKit.button.setTitle(view(), nsString(next.title).get());
        setAccessibilityLabel(view(), next.title);
    }
    if (differs(next, &ui::ButtonElement::shortcut)) {
        appKit.button.setKeyEquivalent(view(), nsString(keyOf(next.shortcut)).get());
    }
    mac::setAction(view(), next.action);
}

} // namespace kestrune::mac
