#include "platform/Hosting.h"

#include "mac/hosting/HostedView.h"
#include "mac/hosting/HostingState.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune {

namespace {

void setSizing(const mac::Retained& view, HostingSizingOptions options) {
    if (mac::HostedView* const host = mac::HostedView::of(view.get())) {
        host->setSizing(options);
    }
}

} // namespace

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
    setSizing(state_->view, options);
}

HostingView::HostingView(ui::RootView rootView) {
    const mac::Pool pool;
    mac::Retained view = mac::HostedView::make(std::move(rootView));
    setSizing(view, HostingSizingOptions::preferredContentSize);
    state_ = std::make_shared<State>(State{std::move(view)});
}

} // namespace kestrune
