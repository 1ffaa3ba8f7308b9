// A view on its model, shown natively.
#pragma once

#include "mac/hosting/PlatformMeasurer.h"
#include "mac/hosting/SceneView.h"
#include "platform/Hosting.h"
#include "ui/ViewHost.h"

#include <cstddef>
#include <memory>

namespace kestrune::mac {

class HostedView : public std::enable_shared_from_this<HostedView> {
public:
    static std::shared_ptr<HostedView> make(ui::RootView root);
    ~HostedView();

    HostedView(const HostedView&) = delete;
    HostedView& operator=(const HostedView&) = delete;

    // As large as the view wants to be.
    id view() const { return shown_.view(); }

    void setSizing(HostingSizingOptions sizing);

    // The view is the content of its window from now on, whose content takes the view's size.
    void enterWindow();

    void press(std::size_t action);
    void flip(std::size_t action, bool isOn);

private:
    explicit HostedView(ui::RootView root);

    // In a later turn of the main run loop; never when this is gone by then.
    void scheduleRendering();
    void render();
    void fitWindow() const;

    PlatformMeasurer measurer_;
    SceneView shown_;
    ui::ViewHost host_;
    HostingSizingOptions sizing_ = HostingSizingOptions::none;
};

} // namespace kestrune::mac
