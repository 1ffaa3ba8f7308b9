#include "platform/Hosting.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/HostedView.h"

#include <utility>

namespace kestrune {

HostingController::HostingController(ui::RootView rootView) {
    sim::recordCall("-[NSHostingController initWithRootView:]");
    state_ = std::make_shared<State>(State{sim::HostedView::make(std::move(rootView))});
}

void HostingController::setSizingOptions(HostingSizingOptions options) {
    sim::recordCall("-[NSHostingController setSizingOptions:] ", static_cast<std::uintptr_t>(options));
    state_->view->setFollowed(contains(options, HostingSizingOptions::preferredContentSize));
}

HostingView::HostingView(ui::RootView rootView) {
    sim::recordCall("-[NSHostingView initWithRootView:]");
    state_ = std::make_shared<State>(State{sim::HostedView::make(std::move(rootView))});
    state_->view->setFollowed(true);
}

} // namespace kestrune
