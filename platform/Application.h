// The application as AppKit sees it.
//
// Source: AppKit, NSApplication.h, NSRunningApplication.h.
#pragma once

#include "platform/Menu.h"
#include "platform/Object.h"
#include "platform/Window.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace kestrune {

// NSApplicationActivationPolicy.
enum class ActivationPolicy : std::intptr_t {
    regular = 0,   // in the Dock and the application switcher, with a menu bar of its own
    accessory = 1, // neither, but it can show windows and be activated
    prohibited = 2,
};

// NSApplicationDelegate.
class ApplicationDelegate : public Object {
public:
    // applicationDidFinishLaunching:, before the first event is handled.
    virtual void applicationDidFinishLaunching() noexcept = 0;

    // applicationShouldHandleReopen:hasVisibleWindows:, each time the user opens the application while it
    // runs, in the Finder or with Spotlight. A window in the Dock counts as visible. The result is whether
    // AppKit goes on as it would by itself, bringing such a window out of the Dock.
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows) noexcept = 0;

    // applicationWillTerminate:, the last call before the process exits.
    virtual void applicationWillTerminate() noexcept = 0;
};

// NSApplication: one for the process, and alive as long as it.
class Application {
public:
    // NSApplication.sharedApplication, which makes the application object on the first call.
    static Application sharedApplication();

    // NSApp: the shared application, absent before it was made.
    static std::optional<Application> nsApp();

    // setDelegate:. Held weakly.
    void setDelegate(const std::weak_ptr<ApplicationDelegate>& delegate);

    // setActivationPolicy:. False when the system refuses.
    bool setActivationPolicy(ActivationPolicy policy);

    // activationPolicy.
    ActivationPolicy activationPolicy() const;

    // windows: every window of the application that there is, on screen or not, in no order.
    std::vector<Window> windows() const;

    // setMainMenu:. Retained. It shows while the application is regular and active; its key equivalents work
    // while the application is active.
    void setMainMenu(const Menu& menu);

    // activateIgnoringOtherApps:. The application's windows come to the front and one of them receives the
    // keys, some time later or, when the system refuses, never.
    void activateIgnoringOtherApps(bool ignoring);

    // run. Launches the application and handles its events. It ends with the process on a Mac; another
    // implementation may return, and deliver the events by other means.
    void run();

    // terminate: with a nil sender. Tells the delegate and ends the process.
    void terminate();

private:
    Application() = default;
};

} // namespace kestrune
