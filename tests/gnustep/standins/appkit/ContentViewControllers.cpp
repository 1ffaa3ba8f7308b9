// A window's content view controller, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: the window retains the controller, its content
// becomes the controller's view and takes that view's size.
#include "tests/gnustep/standins/appkit/ContentViewControllers.h"

#include "base/Geometry.h"
#include "mac/objc/Retained.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <unordered_map>

namespace kestrune::gnustep {

namespace {

// By window.
std::unordered_map<id, mac::Retained>& controllers() {
    static auto& retained = *new std::unordered_map<id, mac::Retained>;
    return retained;
}

// The controller's end may reach back into the map.
void forget(id window) {
    const auto node = controllers().extract(window);
    static_cast<void>(node);
}

void setContentViewController(id window, SEL, id controller) {
    const mac::Retained before = std::exchange(controllers()[window], mac::Retained::retaining(controller));
    whenDeallocated(window, &controllers(), [window] { forget(window); });
    const id view = send(controller, "view");
    const Size size = send<Rect>(view, "frame").size;
    send<void>(window, "setContentView:", view);
    send<void>(window, "setContentSize:", size);
}

} // namespace

void installContentViewControllers() {
    addMethod(classNamed("NSWindow"), "setContentViewController:", setContentViewController);
}

} // namespace kestrune::gnustep
