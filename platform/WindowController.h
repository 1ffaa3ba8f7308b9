// Controllers of windows.
//
// Source: AppKit, NSWindowController.h.
#pragma once

#include "platform/Window.h"

#include <optional>
#include <string_view>

namespace kestrune {

// NSWindowController, as the superclass of the application's own, each of which is also the delegate of its
// window once `Window::setDelegate` says so. It retains its window. A subclass can only be made by its own
// constructor: when the platform makes one from an archive (`initWithCoder:`) or from a bare window
// (`initWithWindow:`), the process stops with the message
// "<sourcePath>: Fatal error: init(coder:) is not supported". The runtime knows the subclass from its first
// instance on; before that an archive names a class that there is not.
class WindowController : public WindowDelegate {
public:
    // Where the subclass is defined, such as "Kestrune/AWindowController"; static storage.
    virtual std::string_view sourcePath() const = 0;

protected:
    // -[NSWindowController initWithWindow:], in place of `Object::init`. Once, in the constructor of the most
    // derived class, before anything but its fields is set.
    void initWithWindow(const Window& window);

    // window. Only after `initWithWindow`.
    Window& window() { return *window_; }

private:
    std::optional<Window> window_;
};

} // namespace kestrune
