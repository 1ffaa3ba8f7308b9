#include "mac/hosting/ButtonSettings.h"

#include "mac/Vocabulary.h"
#include "mac/objc/Text.h"

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

Unsigned platformSize(ui::ControlSize size) {
    switch (size) {
    case ui::ControlSize::mini:
        return 2;
    case ui::ControlSize::small:
        return 1;
    case ui::ControlSize::large:
        return 3;
    case ui::ControlSize::regular:
        break;
    }
    return 0;
}

void setButtonSize(id button, ui::ControlSize size) {
    const id fonts = ns_font::type.object();
    ns_control::setControlSize(button, platformSize(size));
    ns_control::setFont(button, ns_font::systemFontOfSize(
                                    fonts, ns_font::systemFontSizeForControlSize(fonts, platformSize(size))));
}

void setShortcut(id button, ui::KeyboardShortcut shortcut) {
    ns_button::setKeyEquivalent(button, nsString(keyOf(shortcut)).get());
}

void setTitle(id button, std::string_view title) { ns_button::setTitle(button, nsString(title).get()); }

void setAccessibilityLabel(id control, std::string_view label) {
    ns_view::setAccessibilityLabel(control, nsString(label).get());
}

void setAction(id control, std::size_t action) { ns_control::setTag(control, static_cast<Integer>(action)); }

std::size_t actionOf(id control) { return static_cast<std::size_t>(ns_control::tag(control)); }

} // namespace kestrune::mac
