// A view on its model, shown natively.
#pragma once

#include "mac/hosting/PlatformMeasurer.h"
#include "mac/hosting/SceneView.h"
#include "mac/objc/Retained.h"
#include "platform/Hosting.h"
#include "ui/hosting/ViewHost.h"

#include <cstddef>
#include <memory>

namespace kestrune::mac {

// Belongs to its native view and ends with it, so that it lives in its window when nobody else has it.
class HostedView {
public:
    // The native view, as large as the view wants to be.
    static Retained make(ui::RootView root);

    // Of a view that was made here; null for nil.
    static HostedView* of(id view);

    HostedView(const HostedView&) = delete;
    HostedView& operator=(const HostedView&) = delete;
    ~HostedView() = default;

    void setSizing(HostingSizingOptions sizing);

    // Gives the content of the view's window the size of the view; the top left corner of the window stays
    // where it is. Outside a window the view itself takes that size.
    void fitWindow() const;

    void press(std::size_t action);
    void flip(std::size_t action, bool isOn);

private:
    HostedView(id view, ui::RootView root);

    id view() const { return shown_.view(); }

    // In a later turn of the main run loop; never when this is gone by then.
    void startTask(void (HostedView::*task)());
    void render();
    void showScene();

    // By which tasks find it. There before the host, whose first scene may start one.
    std::shared_ptr<HostedView*> self_ = std::make_shared<HostedView*>(this);
    PlatformMeasurer measurer_;
    SceneView shown_;
    ui::ViewHost host_;
    HostingSizingOptions sizing_ = HostingSizingOptions::none;
};

} // namespace kestrune::mac
