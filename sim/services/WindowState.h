// A window of the simulated session.
#pragma once

#include "platform/Window.h"
#include "sim/services/LiveObject.h"
#include "sim/services/WindowLook.h"

#include <functional>
#include <memory>
#include <string>

namespace kestrune {

namespace sim {
class HostedView;
}

struct Window::State {
    static constexpr double TitleBarHeight = 28;
    static constexpr double HigherBarHeight = 52; // of any other look

    bool has(WindowStyleMask part) const { return contains(styleMask, part); }
    bool has(WindowCollectionBehavior part) const { return contains(collectionBehavior, part); }
    double titleBarHeight() const {
        const double height = look == sim::WindowLook::standard ? TitleBarHeight : HigherBarHeight;
        return has(WindowStyleMask::titled) ? height : 0;
    }

    bool isOfApplication() const { return owner.empty(); }

    // The frame without the title bar.
    Rect contentRect() const;

    // The top left corner stays where it is.
    void setContentSize(Size size);

    std::string owner; // the program beside the application whose window it is; empty: the application's
    sim::WindowLook look = sim::WindowLook::standard;
    std::function<void()> dismiss; // what the user's closing of another program's window does

    std::string className = "NSWindow";
    std::string title;
    Rect frame; // AppKit screen coordinates
    WindowStyleMask styleMask = WindowStyleMask::borderless;
    WindowLevel level = WindowLevel::normal;
    WindowCollectionBehavior collectionBehavior = WindowCollectionBehavior::none;
    bool isReleasedWhenClosed = true;
    bool hidesOnDeactivate = false;
    bool isVisible = false;
    bool isMiniaturized = false;              // in the Dock, and so not visible
    bool isReleased = false;                  // by its closing
    std::shared_ptr<sim::HostedView> content; // null until there is one
    std::weak_ptr<WindowDelegate> delegate;
    sim::LiveObject object{"window", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
