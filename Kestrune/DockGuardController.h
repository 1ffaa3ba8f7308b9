// Keeps the Dock on the pinned display.
#pragma once

#include "Kestrune/ManagedScreen.h"
#include "Kestrune/Preferences.h"
#include "platform/Event.h"
#include "platform/EventTap.h"
#include "platform/Log.h"
#include "platform/RunLoop.h"

#include <memory>
#include <optional>
#include <vector>

namespace kestrune {

// macOS moves the Dock to a display when the pointer is pushed against that display's bottom edge. The guard
// sees every pointer motion in an active event tap and, on each display but the pinned one, moves the
// location of events that enter the band above the bottom edge up to the band's edge. Events are never
// swallowed or replaced. Only bottom edges are guarded, whichever edge the user's Dock is on.
//
// Main thread only; the tap's source is on the main run loop, so the callback shares the fields without
// locks. The owner keeps the controller alive while it runs (the tap holds it unretained) and calls `stop`
// before letting go.
class DockGuardController {
public:
    // Depth of the blocked band in points, unless the preferences give one.
    static constexpr double DefaultBlockMargin = 4.0;

    DockGuardController() = default;
    DockGuardController(const DockGuardController&) = delete;
    DockGuardController& operator=(const DockGuardController&) = delete;

    // Until the preferences are set no stored choice is resolved and no event is changed.
    void setPreferences(std::shared_ptr<Preferences> preferences);

    // Enumerates the displays afresh and resolves the pinned one: the user's choice if it is connected, else
    // the main display, else the first. A stored choice that is not connected is overwritten with what was
    // resolved, or removed when there is no display at all; a choice that was never made is never written.
    void refreshScreens();

    // Creates, installs and enables the tap. Call it after `refreshScreens`, with the Accessibility
    // permission and not running. When the system refuses the tap, one error is logged and nothing changes. A
    // tap that is already there is taken down once the new one stands.
    void start();

    // Disables and removes the tap; does nothing when not running.
    void stop();

    // True from a successful start to the next stop, also while the system has switched the tap off.
    bool isRunning() const { return isRunning_; }

    // The displays as of the last refresh, in the system's order.
    const std::vector<ManagedScreen>& screensCache() const { return screensCache_; }

    // The display that may receive the Dock, as of the last refresh; absent when no display was connected.
    const std::optional<ManagedScreen>& pinnedScreen() const { return pinnedScreen_; }

    // The decision for one motion event: returns `event`, possibly with its location changed. Reads the
    // preferences each time, so that a change takes effect with the next event. Does not allocate.
    Event* handleEvent(Event* event);

    // The tap's callback; `userInfo` is the controller or null.
    static Event* eventTapCallback(EventTapProxy* proxy, EventType type, Event* event,
                                   void* userInfo) noexcept;

private:
    std::optional<ManagedScreen> fallbackScreen() const;
    const ManagedScreen* screenAt(Point location) const;
    double blockMargin() const;
    void removeTap();
    const Log& log();

    std::shared_ptr<Preferences> preferences_;
    std::optional<EventTap> eventTap_;
    std::optional<RunLoopSource> runLoopSource_;
    std::vector<ManagedScreen> screensCache_;
    std::optional<ManagedScreen> pinnedScreen_;
    bool isRunning_ = false;

    // Made at the first message.
    std::optional<Log> log_;

    // The edges of the frames in `screensCache_`, in the same order, so that no event standardizes a frame
    // again.
    std::vector<Edges> edgesCache_;
};

} // namespace kestrune
