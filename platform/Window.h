// Windows.
//
// Frames are in AppKit screen coordinates: origin at the bottom left of the primary display, y upwards.
//
// Source: AppKit, NSWindow.h, NSGraphics.h.
#pragma once

#include "base/Geometry.h"
#include "base/OptionSet.h"
#include "platform/Hosting.h"
#include "platform/Object.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune {

// NSWindowStyleMask.
enum class WindowStyleMask : std::uintptr_t {
    borderless = 0,
    titled = 1,
    closable = 2,
    miniaturizable = 4,
    resizable = 8,
};

template <>
inline constexpr bool IsOptionSet<WindowStyleMask> = true;

// NSBackingStoreType.
enum class BackingStoreType : std::uintptr_t { buffered = 2 };

// NSWindowLevel: a window lies in front of every window of a lower level.
enum class WindowLevel : std::intptr_t { normal = 0, floating = 3 };

// NSWindowCollectionBehavior.
enum class WindowCollectionBehavior : std::uintptr_t {
    none = 0,
    canJoinAllSpaces = 1,
    fullScreenAuxiliary = 256,
};

template <>
inline constexpr bool IsOptionSet<WindowCollectionBehavior> = true;

// NSWindowDelegate.
class WindowDelegate : public Object {
public:
    // windowDidBecomeKey:, when the window receives the keys from now on.
    virtual void windowDidBecomeKey() noexcept {}

    // windowWillClose:, when the user or the program closes the window. Ordering it out does not close it.
    virtual void windowWillClose() noexcept {}
};

// A retained NSWindow.
class Window {
public:
    // initWithContentRect:styleMask:backing:defer:.
    Window(const Rect& contentRect, WindowStyleMask styleMask, BackingStoreType backing, bool defer);

    // object_getClassName: the class that the window really is of, as frameworks have their own.
    std::string className() const;

    // title and setTitle:, UTF-8.
    std::string title() const;
    void setTitle(std::string_view title);

    // setReleasedWhenClosed:. On unless set, which takes the window from whoever still uses it.
    void setReleasedWhenClosed(bool released);

    // setLevel:.
    void setLevel(WindowLevel level);

    // setHidesOnDeactivate:.
    void setHidesOnDeactivate(bool hides);

    // setCollectionBehavior:.
    void setCollectionBehavior(WindowCollectionBehavior behavior);

    // center: in the middle of the main display, somewhat above it vertically.
    void center();

    // setContentViewController:. Retained. The window's content takes the size of its view.
    void setContentViewController(const HostingController& controller);

    // setContentView:. Retained. The window's content takes the view's ideal size and follows it, as the
    // view's sizing options have it unless set.
    void setContentView(const HostingView& view);

    // setDelegate:. Held weakly.
    void setDelegate(const std::weak_ptr<WindowDelegate>& delegate);

    // makeKeyAndOrderFront: with a nil sender. In front of the windows of its level; it receives the keys
    // once the application is active.
    void makeKeyAndOrderFront();

    // orderOut: with a nil sender. Hides the window; its delegate is not told.
    void orderOut();

    struct State;
    explicit Window(std::shared_ptr<State> state) : state_(std::move(state)) {}
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

} // namespace kestrune
