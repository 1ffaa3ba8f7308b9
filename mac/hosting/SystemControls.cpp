#include "mac/hosting/SystemControls.h"

#include "mac/Vocabulary.h"
#include "mac/hosting/ButtonView.h"
#include "mac/objc/NewObject.h"

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

} // namespace kestrune::mac
