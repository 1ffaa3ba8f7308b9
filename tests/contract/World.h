// What a contract test may arrange around the application, and what it can see from outside: the same for
// every implementation of the seam, each of which defines this class in a folder of its own.
#pragma once

#include "base/Geometry.h"
#include "platform/DisplayUUID.h"
#include "platform/Event.h"
#include "platform/Screen.h"

#include <cstddef>
#include <cstdint>
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

// One error message in the system log.
struct LoggedError {
    std::string subsystem;
    std::string category;
    std::string message;

    friend bool operator==(const LoggedError&, const LoggedError&) = default;
};

// A fresh session of one user, in which the process under test may create event taps. Only one exists at a
// time.
class World {
public:
    static constexpr std::string_view BundleIdentifier = "org.kestrune.Contract";

    World();
    ~World();

    World(const World&) = delete;
    World& operator=(const World&) = delete;

    // The Info.plist has no CFBundleIdentifier. Takes effect for a world made with it.
    struct WithoutBundleIdentifier {};
    explicit World(WithoutBundleIdentifier);

    // Connects exactly these displays, the primary first; it lies at the origin. The first also has the key
    // window.
    void connect(const std::vector<ConnectedDisplay>& displays);

    // The display with the key window, by its place in the list; absent: there is none.
    void setMainDisplay(std::optional<std::size_t> index);

    // The platform makes no string of any UUID.
    void failUUIDStrings();

    void setTrust(Trust trust);

    // Another process stores a value in the application's defaults.
    void store(std::string_view key, const StoredValue& value);

    // A pointer event enters the session and the application handles it. Returns where it is delivered behind
    // all taps, in global display coordinates; absent when a tap deleted it.
    std::optional<Point> post(EventType type, Point location);

    // The system switches the application's taps off for that reason, and the application handles that.
    void switchTapsOff(EventType reason);

    std::vector<LoggedError> loggedErrors() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace kestrune::contract
