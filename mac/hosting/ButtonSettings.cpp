#include "mac/hosting/ButtonSettings.h"

#include "mac/Vocabulary.h"

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
    appKit.control.setControlSize(button, platformSize(size));
    appKit.control.setFont(
        button, appKit.font.systemFontOfSize(appKit.font.systemFontSizeForControlSize(platformSize(size))));
}

void setAction(id control, std::size_t action) {
    appKit.control.setTag(control, static_cast<Integer>(action));
}

std::size_t actionOf(id control) { return static_cast<std::size_t>(appKit.control.tag(control)); }

} // namespace kestrune::mac
