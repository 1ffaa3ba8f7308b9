// A simulated Mac session as whoever drives it has it: the hardware, the user, time and faults.
//
// What the application meets is owned by sim/session/System.h.
#pragma once

#include "platform/Event.h"
#include "sim/services/Current.h"
#include "sim/session/Faults.h"
#include "sim/session/SessionOptions.h"
#include "sim/session/System.h"
#include "sim/session/User.h"

#include <cstdint>
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

    // Who acts at the session, besides the hardware and time below.
    User& user() { return user_; }
    Faults& faults() { return faults_; }

    // The hardware, and where updates come from.
    Displays& displays() { return system_.displays; }
    Dock& dock() { return system_.dock; }
    VirtualClock& clock() { return system_.clock; }
    UpdateSupply& updateSupply() { return system_.updateSupply; }

    // What the application meets, for whoever looks at what became of it.
    Journal& journal() { return system_.journal; }
    Accessibility& accessibility() { return system_.accessibility; }
    DefaultsDomain& defaults() { return system_.defaults; }
    TapChain& taps() { return system_.taps; }
    RunLoopSources& sources() { return system_.sources; }
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

    // Lets time pass. The main thread runs what falls due, once it is free.
    void advance(Duration duration);

    // The same for the updater: the time for a scheduled check has come.
    void checkForUpdatesAsScheduled() { system_.updates.checkAsScheduled(); }

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

    bool cursorFollowsEvents_;
    System system_;
    User user_{system_};
    Faults faults_{system_};
    Point pointer_;
    Duration longestHold_{0};
    Current<Session> current_{*this};
};

} // namespace kestrune::sim
