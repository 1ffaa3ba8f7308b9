// Declarative views inside windows.
//
// SwiftUI's classes are Swift, and no C function or Objective-C message makes one. On a Mac the binding
// therefore stands an NSView of its own in for the hosting view, with AppKit's controls in it, and an
// NSViewController with such a view for the controller. The names here say whose behaviour they have.
//
// Source: SwiftUI, NSHostingController and NSHostingView, NSHostingSizingOptions.
#pragma once

#include "base/OptionSet.h"
#include "ui/hosting/ViewHost.h"

#include <cstdint>
#include <memory>

namespace kestrune {

// NSHostingSizingOptions, as far as it is used.
enum class HostingSizingOptions : std::uintptr_t {
    none = 0,                 // the window keeps its size
    preferredContentSize = 8, // the window's content takes the view's ideal size, and follows it
};

template <>
inline constexpr bool IsOptionSet<HostingSizingOptions> = true;

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

// A retained NSHostingView, which does with its root view what the controller does.
class HostingView {
public:
    // initWithRootView:.
    explicit HostingView(ui::RootView rootView);

    struct State;
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

} // namespace kestrune
