// Declarative views inside windows.
//
// Source: SwiftUI, NSHostingController and NSHostingView, NSHostingSizingOptions.
#pragma once

#include "ui/ViewHost.h"

#include <memory>
#include <utility>

namespace kestrune {

// NSHostingSizingOptions, as far as it is used.
enum class HostingSizingOptions {
    none,                 // the window keeps its size
    preferredContentSize, // the window's content takes the view's ideal size, and follows it
};

// A retained NSHostingController. It lays the view out again once per turn of the run loop in which the
// view's model changed, and shows what is different.
class HostingController {
public:
    // initWithRootView:. The view is measured with the platform's own fonts, its texts are looked up in the
    // main bundle.
    explicit HostingController(ui::RootView rootView);

    // setSizingOptions:.
    void setSizingOptions(HostingSizingOptions options);

    struct State;
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

} // namespace kestrune
