// What every host of a view does: it looks at a model, and lays the view out again once after the model
// changed, however often it did.
#pragma once

#include "ui/ObservableObject.h"
#include "ui/Scene.h"
#include "ui/View.h"
#include "ui/layout/Layout.h"

#include <functional>
#include <memory>

namespace kestrune::ui {

// A view that is described anew from its model.
struct RootView {
    std::function<View()> body;
    std::shared_ptr<ObservableObject> model;
};

class ViewHost {
public:
    // `schedule` is called when the model is about to change, once until the next `render`; it lets `render`
    // be called in a later turn of the run loop. The first scene is there from the start. `context` must
    // outlive the host, with its measurer.
    ViewHost(RootView root, LayoutContext context, std::function<void()> schedule);

    ViewHost(const ViewHost&) = delete;
    ViewHost& operator=(const ViewHost&) = delete;

    // Describes and lays out the view for an unspecified proposal. True when it looks different now; what its
    // controls do is new in any case.
    bool render();

    const Scene& scene() const { return rendering_.scene; }

    // The user pressed a button or flipped a switch of the scene. The action lives until it returns, and may
    // change the model, render the host or destroy it; a number that the scene does not have does nothing.
    void press(std::size_t action);
    void flip(std::size_t action, bool isOn);

private:
    RootView root_;
    LayoutContext context_;
    std::function<void()> schedule_;
    bool isScheduled_ = false;
    Rendering rendering_;
    Observation observation_;
};

} // namespace kestrune::ui
