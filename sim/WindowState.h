// A window of the simulated session.
#pragma once

#include "platform/Hosting.h"
#include "platform/Window.h"
#include "sim/LiveObject.h"

#include <memory>
#include <optional>
#include <string>

namespace kestrune {

struct Window::State {
    static constexpr double TitleBarHeight = 28;

    bool has(WindowStyleMask part) const { return contains(styleMask, part); }
    bool has(WindowCollectionBehavior part) const { return contains(collectionBehavior, part); }
    double titleBarHeight() const { return has(WindowStyleMask::titled) ? TitleBarHeight : 0; }

    // The frame without the title bar.
    Rect contentRect() const;

    // The top left corner stays where it is.
    void setContentSize(Size size);

    std::string title;
    Rect frame; // AppKit screen coordinates
    WindowStyleMask styleMask = WindowStyleMask::borderless;
    WindowLevel level = WindowLevel::normal;
    WindowCollectionBehavior collectionBehavior = WindowCollectionBehavior::none;
    bool isReleasedWhenClosed = true;
    bool hidesOnDeactivate = false;
    bool isVisible = false;
    bool isReleased = false; // by its closing
    std::optional<HostingController> content;
    std::weak_ptr<WindowDelegate> delegate;
    sim::LiveObject object{"window", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
