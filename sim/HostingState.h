// A hosted view of the simulated session.
#pragma once

#include "platform/Hosting.h"
#include "platform/Window.h"
#include "sim/LiveObject.h"
#include "ui/ViewHost.h"

#include <memory>
#include <utility>

namespace kestrune {

struct HostingController::State {
    State(ui::RootView root, ui::LayoutContext context, std::function<void()> schedule)
        : host(std::move(root), std::move(context), std::move(schedule)) {}

    // Lays out what changed; the window follows.
    void render();

    void fitWindow() const;

    ui::ViewHost host;
    HostingSizingOptions sizing = HostingSizingOptions::none;
    std::weak_ptr<Window::State> window;
    sim::LiveObject object{"hosting controller", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
