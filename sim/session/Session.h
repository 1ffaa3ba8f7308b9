// A simulated Mac session: displays, pointer, Dock, event taps, run loop, defaults, permission and log.
#pragma once

#include "platform/Event.h"
#include "sim/session/Accessibility.h"
#include "sim/session/ApplicationState.h"
#include "sim/session/BundleContents.h"
#include "sim/session/DefaultsDomain.h"
#include "sim/session/Displays.h"
#include "sim/session/Dock.h"
#include "sim/session/FixedAdvanceMeasurer.h"
#include "sim/session/Journal.h"
#include "sim/session/LoginItem.h"
#include "sim/session/MenuTracking.h"
#include "sim/session/Observers.h"
#include "sim/session/RunLoopSources.h"
#include "sim/session/StatusItems.h"
#include "sim/session/Surroundings.h"
#include "sim/session/TapChain.h"
#include "sim/session/Timers.h"
#include "sim/session/Updates.h"
#include "sim/session/VirtualClock.h"
#include "sim/session/Windows.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::sim {

struct SessionOptions {
    std::vector<Display> displays = {makeDisplay(1, "Built-in Display", {0, 0, 1512, 982})};
    Permission permission = Permission::granted;
    PropertyListDictionary defaults = {};
    BundleContents bundle = {};
    Surroundings surroundings = {};
    UpdateFramework updateFramework = UpdateFramework::working;
    bool recordJournal = true;

    // Whether the visible pointer goes where an active tap put the event. Not confirmed for session taps.
    bool cursorFollowsEvents = true;

    Duration dockDwell = Dock::DefaultDwell;

    // How large texts and controls are; must outlive the session. Null: every character is equally wide.
    const ui::Measurer* measurer = nullptr;
};

enum class LogLevel { debug, info, error };

struct LogRecord {
    LogLevel level;
    std::string subsystem;
    std::string category;
    std::string message;
    std::string format; // the message itself when it has no argument
};

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
    ~Session();

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The session that exists; stops the process when there is none.
    static Session& current() {
        if (current_ == nullptr) {
            stopWithoutSession();
        }
        return *current_;
    }

    // The session with that number, null when it is gone.
    static Session* withNumber(std::uint64_t number);
    std::uint64_t number() const { return number_; }

    Journal& journal() { return journal_; }
    VirtualClock& clock() { return clock_; }
    Accessibility& accessibility() { return accessibility_; }
    Displays& displays() { return displays_; }
    DefaultsDomain& defaults() { return defaults_; }
    TapChain& taps() { return taps_; }
    RunLoopSources& sources() { return sources_; }
    Dock& dock() { return dock_; }
    const BundleContents& bundle() const { return bundle_; }
    const Surroundings& surroundings() const { return surroundings_; }
    LoginItem& loginItem() { return loginItem_; }
    Updates& updates() { return updates_; }
    ApplicationState& application() { return application_; }
    Timers& timers() { return timers_; }
    Observers& observers() { return observers_; }
    StatusItems& statusItems() { return statusItems_; }
    MenuTracking& menus() { return menus_; }
    Windows& windows() { return windows_; }
    const ui::Measurer& measurer() const { return measurer_ != nullptr ? *measurer_ : fixedAdvance_; }

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

    // Plugs, unplugs or rearranges displays: the pointer and the Dock follow, and the application is told
    // once its main thread is free.
    void changeDisplays(std::vector<Display> displays);

    // The application's process has its shared application.
    void startApplication();

    // The user opens the application that runs already: the system makes it the active one and tells its
    // delegate. Whether AppKit goes on by itself, which is not simulated.
    bool reopenApplication();

    // The process ends, by itself or by force: its taps, timers, observers, status items and tasks go, and
    // what is left of its objects has no effect any more. Another process may start.
    void endApplication();

    // Fault: the system does not let the application activate itself.
    void refuseActivation(bool refuse) { refusesActivation_ = refuse; }
    bool refusesActivation() const { return refusesActivation_; }

    // Runs on the main thread after that time, at the earliest when time passes next, if the process is still
    // the same then.
    void enqueueOnMainQueue(std::function<void()> task, Duration delay = Duration::zero());

    // An alert that was shown from the main queue keeps it, and the run loop from its default mode, until the
    // alert is closed.
    void beginModalAlert();
    void endModalAlert();

    // Of the application's process, by the addresses that tell them apart.
    std::map<const void*, std::shared_ptr<void>>& processObjects() { return processObjects_; }

    // The URLs that were opened, in order.
    const std::vector<std::string>& openedURLs() const { return openedURLs_; }

    // Whether somebody opens it.
    bool openURL(const std::string& text);

    // Fault: no application is responsible for any URL.
    void refuseOpeningURLs(bool refuse) { refusesOpeningURLs_ = refuse; }

    // Fault: no text is a URL.
    void refuseURLs(bool refuse) { refusesURLs_ = refuse; }
    bool refusesURLs() const { return refusesURLs_; }

    // Fault: what `work` makes the application do happens on another thread.
    void onAnotherThread(const std::function<void()>& work);
    bool isOnMainThread() const { return isOnMainThread_; }

    // Lets time pass. The main thread runs what falls due, once it is free.
    void advance(Duration duration);

    // Fault: the main thread is busy for that long. Events wait for it, at most until the tap times out.
    void stallMainThread(Duration duration);

    // Fault: the system switches the taps off and, unless the main thread is busy, tells the application at
    // once.
    void disableTaps(EventType reason);

    // Fault: CGEventTapCreate refuses although the permission is there.
    void refuseTapCreation(bool refuse) { refusesTapCreation_ = refuse; }
    bool allowsTapCreation() const { return !refusesTapCreation_ && accessibility_.allowsActiveTaps(); }

    // The longest time that an event was held up before it was delivered.
    Duration longestHold() const { return longestHold_; }

    const std::vector<LogRecord>& logRecords() const { return logRecords_; }
    void appendLogRecord(LogRecord record) { logRecords_.push_back(std::move(record)); }

    // What the report of a crash would say, empty for nothing.
    const std::string& crashReportMessage() const { return crashReportMessage_; }
    void setCrashReportMessage(const std::string& message) { crashReportMessage_ = message; }

    // Objects of the platform's that the application retains.
    std::int64_t liveObjects() const { return liveObjects_; }
    void countLiveObject(std::int64_t change) { liveObjects_ += change; }

private:
    Delivery deliver(EventType type, Point location, double deltaY);
    void waitForTaps(EventType type);
    void hold(Duration duration);
    void systemCameForward(bool isInFront);
    void announceScreenParameters();
    void runPendingNotices();
    [[noreturn]] static void stopWithoutSession();

    // The platform is one for the whole process, and so is what stands in for it.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    inline static Session* current_ = nullptr;

    std::uint64_t number_;
    Journal journal_;
    VirtualClock clock_;
    Accessibility accessibility_;
    Displays displays_;
    Dock dock_;
    DefaultsDomain defaults_;
    TapChain taps_;
    RunLoopSources sources_;
    BundleContents bundle_;
    Surroundings surroundings_;
    LoginItem loginItem_;
    ApplicationState application_;
    Timers timers_{clock_};
    Observers observers_;
    StatusItems statusItems_;
    MenuTracking menus_{*this};
    Windows windows_{*this};
    Updates updates_;
    std::map<const void*, std::shared_ptr<void>> processObjects_;
    bool isMainQueueKept_ = false;
    std::vector<std::function<void()>> waitingForMainQueue_;
    const ui::Measurer* measurer_;
    FixedAdvanceMeasurer fixedAdvance_;
    std::uint64_t processNumber_ = 0;
    std::vector<std::string> openedURLs_;
    bool refusesURLs_ = false;
    bool refusesOpeningURLs_ = false;
    bool isOnMainThread_ = true;
    bool cursorFollowsEvents_;
    bool refusesTapCreation_ = false;
    bool refusesActivation_ = false;
    Point pointer_;
    Duration mainThreadFreeAt_{0};
    Duration longestHold_{0};
    std::vector<LogRecord> logRecords_;
    std::string crashReportMessage_;
    std::int64_t liveObjects_ = 0;
};

} // namespace kestrune::sim
