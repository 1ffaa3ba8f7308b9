// SwiftUI's own controller is a class of Swift's and out of reach of the runtime's C interface; in its place
// is a view controller that owns a hosted view.
#include "mac/Vocabulary.h"
#include "mac/hosting/HostingState.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "platform/Hosting.h"

#include <utility>

namespace kestrune {

namespace {

using Owner = std::shared_ptr<mac::HostedView>;

Owner* ownerIn(id controller) { return static_cast<Owner*>(mac::RuntimeClass::target(controller)); }

void dealloc(id controller, SEL) noexcept {
    const mac::Pool pool;
    delete ownerIn(controller);
    mac::ns_object::dealloc.asImplementedBy(mac::ns_view_controller::type.find(), controller);
}

Class controllerClass() {
    static const Class made = [] {
        mac::RuntimeClass type("KestruneHostingController", mac::ns_view_controller::type.find());
        type.addMethod("dealloc", dealloc);
        return type.finish();
    }();
    return made;
}

mac::Retained newController(ui::RootView rootView) {
    mac::Retained controller = mac::Retained::adopting(mac::ns_view_controller::initWithNibName(
        mac::ns_object::alloc(reinterpret_cast<id>(controllerClass())), nullptr, nullptr));
    const Owner hosted = mac::HostedView::make(std::move(rootView));
    mac::RuntimeClass::setTarget(controller.get(), new Owner(hosted));
    mac::ns_view_controller::setView(controller.get(), hosted->view());
    return controller;
}

} // namespace

mac::HostedView& HostingController::State::hostedView() const { return **ownerIn(controller.get()); }

HostingController::HostingController(ui::RootView rootView) {
    const mac::Pool pool;
    state_ = std::make_shared<State>(State{newController(std::move(rootView))});
}

void HostingController::setSizingOptions(HostingSizingOptions options) {
    const mac::Pool pool;
    state_->hostedView().setSizing(options);
}

} // namespace kestrune
