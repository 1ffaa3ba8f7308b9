// One display that is connected to the simulated Mac.
#pragma once

#include "base/Geometry.h"
#include "platform/DisplayUUID.h"
#include "platform/Screen.h"

#include <optional>
#include <string>

namespace kestrune::sim {

struct Display {
    DisplayID displayID = 0;

    // What CGDisplayCreateUUIDFromDisplayID knows; absent for a display without UUID.
    std::optional<std::string> uuid;

    // The entry "NSScreenNumber" of the device description; absent for a display without number.
    std::optional<DeviceDescriptionValue> screenNumber;

    std::string localizedName;

    // Global display coordinates, y downwards. The primary display's origin is (0, 0).
    Rect bounds;

    friend bool operator==(const Display&, const Display&) = default;
};

// A well-behaved display: its number is `displayID` and its UUID is made from it.
Display makeDisplay(DisplayID displayID, std::string localizedName, const Rect& bounds);

// The UUID that `makeDisplay` gives to a display with that number.
std::string uuidOfDisplay(DisplayID displayID);

} // namespace kestrune::sim
