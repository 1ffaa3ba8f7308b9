#include "mac/hosting/ButtonSettings.h"

#include "mac/Vocabulary.h"
#include "mac/objc/Text.h"

namespace kestrune::mac {

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

void setAccessibilityLabel(id control, std::string_view label) {
    ns_view::setAccessibilityLabel(control, nsString(label).get());
}

void setAction(id control, std::size_t action) { ns_control::setTag(control, static_cast<Integer>(action)); }

std::size_t actionOf(id control) { return static_cast<std::size_t>(ns_control::tag(control)); }

} // namespace kestrune::mac
