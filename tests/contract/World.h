// What a contract test may arrange around the application, and what it can see from outside: the same for
// every implementation of the seam, each of which defines this class in a folder of its own.
#pragma once

#include "base/Geometry.h"
#include "platform/AppService.h"
#include "platform/Application.h"
#include "platform/DisplayUUID.h"
#include "platform/Event.h"
#include "platform/ProcessInfo.h"
#include "platform/Screen.h"
#include "tests/contract/Shown.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::contract {

// A property-list value, as any process may store it in the application's defaults.
struct StoredData {
    std::string bytes;
};
struct StoredDate {
    std::string iso8601;
};
struct StoredArray {
    std::vector<std::string> items;
};
// One entry is enough: the getters look at the kind alone.
struct StoredDictionary {
    std::string key;
    std::string value;
};
using StoredValue = std::variant<bool, std::int64_t, double, std::string, StoredData, StoredDate, StoredArray,
                                 StoredDictionary>;

struct ConnectedDisplay {
    DisplayID displayID = 0;
    std::string localizedName;
    Rect bounds;                                        // Global display coordinates.
    std::optional<std::string> uuid;                    // Absent: the system knows none.
    std::optional<DeviceDescriptionValue> screenNumber; // The entry "NSScreenNumber"; absent: there is none.
};

// A display whose number is `displayID`, without UUID.
ConnectedDisplay connectedDisplay(DisplayID displayID, const Rect& bounds);

// The application's row under Accessibility in the system's settings.
enum class Trust {
    notListed,
    switchedOff,
    granted,
    rowDeleted, // after a grant, while the process runs
    outdated,   // switched on for an older build of the application
};

// One message in the system log, seen by somebody who looks at every level.
struct LoggedMessage {
    enum class Level { debug, info, error };

    Level level;
    std::string subsystem;
    std::string category;
    std::string message;
    std::string format; // by which somebody may look for it

    friend bool operator==(const LoggedMessage&, const LoggedMessage&) = default;
};

// A pointer event behind all taps.
struct DeliveredEvent {
    EventType type{};
    Point location;          // Global display coordinates.
    bool isReplaced = false; // A tap returned another event than it was given.

    friend bool operator==(const DeliveredEvent&, const DeliveredEvent&) = default;
};

// Sparkle in the application's bundle: not there, refusing to start, starting.
enum class UpdateFramework { missing, refusing, working };

// What lies in the application's bundle.
struct BundleFiles {
    std::map<std::string, std::variant<std::string, std::int64_t>> infoDictionary;
    std::map<std::string, std::string> localizedStrings; // The default string table of the user's language.
    std::vector<std::string> imageNames;                 // Among the resources.
};

// A fresh session of one user in front of one display, in which the process under test may create event taps.
// Only one exists at a time. Where there is no means to arrange or to see what a test asks for, that test is
// skipped.
class World {
public:
    static constexpr std::string_view BundleIdentifier = "org.kestrune.Contract";

    // What the update framework says when it refuses to start.
    static constexpr std::string_view UpdateFailure = "The updater failed to start.";

    // The bundle has nothing but that identifier.
    World();
    explicit World(const BundleFiles& bundle);
    ~World();

    World(const World&) = delete;
    World& operator=(const World&) = delete;

    // Connects exactly these displays, the primary first; it lies at the origin. The first also has the key
    // window. The system tells the application, which handles that before this returns.
    void connect(const std::vector<ConnectedDisplay>& displays);

    // The system tells the application that the displays have changed, whichever they are now.
    void announceDisplays();

    // The display with the key window, by its place in the list; absent: there is none.
    void setMainDisplay(std::optional<std::size_t> index);

    // The platform makes no string of any UUID.
    void failUUIDStrings();

    // The application's row under Accessibility, and whether the system's dialog asks the user about it.
    void setTrust(Trust trust);
    Trust trust() const;
    bool isTrustDialogShown() const;

    // The user follows that dialog to System Settings.
    void followTrustDialog();

    // Another process stores a value in the application's defaults.
    void store(std::string_view key, const StoredValue& value);

    // A pointer event enters the session and the application handles it. Absent when a tap deleted it.
    std::optional<DeliveredEvent> deliver(EventType type, Point location);

    // The same where only the location matters.
    std::optional<Point> post(EventType type, Point location);

    // The system switches the application's taps off for that reason, and the application handles that.
    void switchTapsOff(EventType reason);

    std::vector<LoggedMessage> loggedMessages() const;

    // What a crash report would say beside the stack; empty for nothing.
    std::string crashReportMessage() const;

    // The main thread's run loop runs for that long, so that timers fire and deferred work is done.
    void letTimePass(double seconds);

    // The main thread does what waits for it.
    void runMainQueue() { letTimePass(0); }

    // What `work` does happens on a thread that is not the main thread; this waits for it.
    void onAnotherThread(const std::function<void()>& work);

    // Does `work`, in which the application runs, and comes back once it has launched.
    void launch(const std::function<void()>& work);

    // The same with nothing but `run`.
    void launchApplication();

    // Does `work`, in which the application terminates. Only the end of the process is held back.
    void catchTermination(const std::function<void()>& work);

    // The user makes it the active application, or another one.
    void activateApplication();
    void activateAnotherApplication();

    // The user opens it once more, while it runs. Whether the system then goes on by itself.
    bool reopenApplication();
    bool isActive() const;
    ActivationPolicy activationPolicy() const;

    // The status items of the application in the menu bar, from the first to the latest.
    std::size_t statusItemCount() const;
    ShownButton statusButton(std::size_t statusItem = 0) const;

    // The user clicks a status item or an item of the main menu, by its place from 0. `whileOpen` runs while
    // the menu there is tracked; afterwards it closes, unless a row was chosen. False when no menu opens.
    bool openStatusMenu(const std::function<void()>& whileOpen, std::size_t statusItem = 0);
    bool openMainMenu(std::size_t item, const std::function<void()>& whileOpen);

    // Of the open menu, from the top.
    std::vector<ShownRow> openMenuRows() const;

    // The user clicks a row of the open menu, by its place from 0.
    void chooseRow(std::size_t row);

    // Opens the status item's menu, looks at its rows or chooses one, and closes it.
    std::vector<ShownRow> statusMenuRows();
    void chooseInStatusMenu(std::size_t row);

    // The user presses a character together with modifiers.
    void pressKey(std::string_view character, EventModifierFlags modifiers);

    // The application's windows that are to be seen, the frontmost first.
    std::vector<ShownWindow> shownWindows() const;

    // What one of them looks like at a place of its content, from its upper left corner, in light appearance.
    SeenColor colorAt(Point place, std::size_t window = 0) const;

    // The user works on one of them, by its place there: clicks into its title bar, on its close button, on
    // its minimise button, on a button of the view that it hosts, on a switch.
    void clickTitleBar(std::size_t window = 0);
    void clickCloseButton(std::size_t window = 0);
    void clickMinimizeButton(std::size_t window = 0);
    void clickButton(std::string_view title, std::size_t window = 0);
    void clickSwitch(std::size_t index, std::size_t window = 0);

    // The platform makes an object of the application's class from an archive, or from a bare window.
    void constructFromArchive(std::string_view className);
    void constructFromWindow(std::string_view className);

    // A framework in the process shows a window of a class of its own, which asks for the keys. It is there
    // as long as the result.
    std::shared_ptr<void> showFrameworkWindow(std::string_view className, std::string_view title,
                                              bool hidesOnDeactivate = false);

    // The application among the login items, as the user finds and changes it in System Settings.
    AppServiceStatus loginItem() const;
    void setLoginItem(AppServiceStatus status);

    // Whoever registers anew waits for the user's approval.
    void requireApprovalOfLoginItem();

    // The system refuses every change of the login item, with that description.
    void refuseLoginItemChanges(std::string description);

    // What the service was asked for, in order: class and selector.
    std::vector<std::string> loginItemMessages() const;

    // What the process runs on.
    OperatingSystemVersion operatingSystemVersion() const;
    std::string localeIdentifier() const;

    // Before the application makes an updater; one that works otherwise.
    void setUpdateFramework(UpdateFramework framework);

    // What its objects were asked for, in order: class, selector and arguments.
    std::vector<std::string> updateMessages() const;

    // Once started, it asks the delegate of its user driver; absent: there is none any more.
    std::optional<bool> asksForGentleReminders() const;

    // And it tells the delegate what it does; `whileShown` runs while the alert is shown.
    void announceUpdate();
    void finishUpdateSession();
    void showUpdateAlert(const std::function<void()>& whileShown);

    // The texts of the URLs that the application opened, in order.
    std::vector<std::string> openedURLs() const;

    // No application is responsible for any URL.
    void letNobodyOpenURLs();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace kestrune::contract
