#include "mac/hosting/SystemControls.h"

#include "mac/Vocabulary.h"
#include "mac/hosting/ButtonView.h"

namespace kestrune::mac {

namespace {

constexpr Unsigned Push = 1; // NSBezelStylePush

} // namespace

Retained newPushButton() {
    const id button = ns_view::initWithFrame(ns_object::alloc(ns_button::type.object()), Rect());
    ns_button::setButtonType(button, MomentaryPushIn);
    ns_button::setBezelStyle(button, Push);
    return Retained::adopting(button);
}

Retained newSwitch() {
    return Retained::adopting(ns_view::initWithFrame(ns_object::alloc(ns_switch::type.object()), Rect()));
}

} // namespace kestrune::mac
