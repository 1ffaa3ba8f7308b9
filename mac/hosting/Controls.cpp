#include "mac/hosting/Controls.h"

#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {
namespace {

constexpr Unsigned Push = 1; // NSBezelStylePush

} // namespace

Retained newPushButton() {
    const id button = appKit.view.initWithFrame(allocate(appKit.button), Rect());
    appKit.button.setButtonType(button, MomentaryPushIn);
    appKit.button.setBezelStyle(button, Push);
    return Retained::adopting(button);
}

Retained newSwitch() {
    return Retained::adopting(appKit.view.initWithFrame(allocate(appKit.switchControl), Rect()));
}

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
