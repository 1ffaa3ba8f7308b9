// A simulated Mac session as whoever drives it has it: the hardware, the user, time and faults.
//
// What the application meets is sim/services/System.h.
#pragma once

#include "platform/Event.h"
#include "sim/services/Current.h"
#include "sim/services/System.h"
#include "sim/session/SessionOptions.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kestrune::sim {

// What became of one pointer event. Locations are in global display coordinates.
struct Delivery {
    EventType type;
    Point sent;
    Point delivered;
    bool swallowed = false;
    bool replaced = false;
};

// Every call of the seam needs a session; there is one at a time, and nothing survives it. Deterministic:
// time, motion and faults come from whoever drives it. All on one thread.
class Session {
public:
    // How long the system waits for an active tap's reply before it switches the tap off. Not documented;
    // reports start at one second.
    static constexpr Duration TapTimeout = std::chrono::seconds(1);

    explicit Session(SessionOptions options = {});

    // The session that exists; stops the process when there is none.
    static Session& current() { return sim::current<Session>(); }

    Journal& journal() { return system_.journal; }
    VirtualClock& clock() { return system_.clock; }
    Accessibility& accessibility() { return system_.accessibility; }
    Displays& displays() { return system_.displays; }
    DefaultsDomain& defaults() { return system_.defaults; }
    TapChain& taps() { return system_.taps; }
    RunLoopSources& sources() { return system_.sources; }
    Dock& dock() { return system_.dock; }
    const BundleContents& bundle() const { return system_.bundle; }
    const Surroundings& surroundings() const { return system_.surroundings; }
    LoginItem& loginItem() { return system_.loginItem; }
    Updates& updates() { return system_.updates; }
    ApplicationState& application() { return system_.application; }
    Process& process() { return system_.process; }
    MainThread& mainThread() { return system_.mainThread; }
    Timers& timers() { return system_.timers; }
    Observers& observers() { return system_.observers; }
    StatusItems& statusItems() { return system_.statusItems; }
    MenuTracking& menus() { return system_.menus; }
    Windows& windows() { return system_.windows; }
    const ui::Measurer& measurer() const { return system_.measurer; }

    // In global display coordinates, like every location below.
    Point pointer() const { return pointer_; }

    // The hardware moves the pointer, in points, y downwards; it stays on the displays.
    Delivery movePointer(double deltaX, double deltaY, EventType type = EventType::mouseMoved);

    // The same, towards a location.
    Delivery movePointerTo(Point location, EventType type = EventType::mouseMoved);

    // Puts the pointer somewhere without an event, confined to the displays.
    void placePointer(Point location);

    // An event with any location enters the session, as another process can post one.
    Delivery post(EventType type, Point location);

    // The longest time that an event was held up before it was delivered.
    Duration longestHold() const { return longestHold_; }

    // Plugs, unplugs or rearranges displays: the pointer and the Dock follow, and the application is told
    // once its main thread is free.
    void changeDisplays(std::vector<Display> displays);

    // The user opens the application that runs already: the system makes it the active one and tells its
    // delegate. Whether AppKit goes on by itself, which is not simulated.
    bool reopenApplication();

    // The user ends the application by force.
    void endApplication() { system_.process.end(); }

    // Lets time pass. The main thread runs what falls due, once it is free.
    void advance(Duration duration);

    // Fault: the main thread is busy for that long. Events wait for it, at most until the tap times out.
    void stallMainThread(Duration duration) { system_.mainThread.stall(duration); }

    // Fault: what `work` makes the application do happens on another thread.
    void onAnotherThread(const std::function<void()>& work) { system_.mainThread.workElsewhere(work); }

    // Fault: the system switches the taps off and, unless the main thread is busy, tells the application at
    // once.
    void disableTaps(EventType reason);

    // Fault: CGEventTapCreate refuses although the permission is there.
    void refuseTapCreation(bool refuse) { system_.accessibility.refuseTapCreation(refuse); }

    // Fault: the system does not let the application activate itself.
    void refuseActivation(bool refuse) { system_.windows.refuseActivation(refuse); }

    // Fault: no application is responsible for any URL.
    void refuseOpeningURLs(bool refuse) { system_.links.refuseOpening(refuse); }

    // Fault: no text is a URL.
    void refuseURLs(bool refuse) { system_.links.refuseMaking(refuse); }

    // What the application has left behind: URLs that were opened and records of the log, in order, what the
    // report of a crash would say, and how many objects of the platform's it retains.
    const std::vector<std::string>& openedURLs() const { return system_.links.opened(); }
    const std::vector<LogRecord>& logRecords() const { return system_.log.all(); }
    const std::string& crashReportMessage() const { return system_.process.crashReportMessage(); }
    std::int64_t liveObjects() const { return system_.liveObjects->count(); }

private:
    Delivery deliver(EventType type, Point location, double deltaY);
    void waitForTaps(EventType type);
    void hold(Duration duration);
    void runPendingNotices();

    bool cursorFollowsEvents_;
    System system_;
    Point pointer_;
    Duration longestHold_{0};
    Current<Session> current_{*this};
};

} // namespace kestrune::sim
