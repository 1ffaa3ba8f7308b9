#include "platform/Hosting.h"

#include "mac/Vocabulary.h"
#include "mac/hosting/HostedView.h"
#include "mac/hosting/HostingState.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"

#include <utility>

namespace kestrune {

HostingController::HostingController(ui::RootView rootView) {
    const mac::Pool pool;
    mac::Retained controller = mac::Retained::adopting(mac::appKit.viewController.initWithNibName(
        mac::allocate(mac::appKit.viewController), nullptr, nullptr));
    mac::Retained view = mac::HostedView::make(std::move(rootView));
    mac::appKit.viewController.setView(controller.get(), view.get());
    state_ = std::make_shared<State>(State{std::move(controller), std::move(view)});
}

void HostingController::setSizingOptions(HostingSizingOptions options) {
    const mac::Pool pool;
    mac::HostedView::of(state_->view.get()).setSizing(options);
}

HostingView::HostingView(ui::RootView rootView) {
    const mac::Pool pool;
    mac::Retained view = mac::HostedView::make(std::move(rootView));
    mac::HostedView::of(view.get()).setSizing(HostingSizingOptions::preferredContentSize);
    state_ = std::make_shared<State>(State{std::move(view)});
}

} // namespace kestrune
