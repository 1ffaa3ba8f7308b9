// A view in a window of the simulated session, laid out anew after its model changed.
#pragma once

#include "platform/Hosting.h"
#include "platform/Window.h"
#include "sim/services/LiveObject.h"
#include "ui/hosting/ViewHost.h"

#include <functional>
#include <memory>

namespace kestrune::sim {

class HostedView {
public:
    static std::shared_ptr<HostedView> make(ui::RootView root);

    HostedView(ui::RootView root, std::function<void()> schedule);

    ui::ViewHost& host() { return host_; }

    // The window that shows it, and whether its content takes the view's ideal size and follows it.
    void enter(const std::shared_ptr<Window::State>& window);
    void setFollowed(bool isFollowed);

private:
    void render();
    void fitWindow() const;

    ui::ViewHost host_;
    bool isFollowed_ = false;
    std::weak_ptr<Window::State> window_;
    LiveObject object_{"hosted view", LiveObject::Release::unrecorded};
};

} // namespace kestrune::sim

namespace kestrune {

struct HostingController::State {
    std::shared_ptr<sim::HostedView> view;
};

struct HostingView::State {
    std::shared_ptr<sim::HostedView> view;
};

} // namespace kestrune
