// The connected displays as plain values that the rest of the application caches, compares and persists.
#pragma once

#include "base/Geometry.h"
#include "platform/DisplayUUID.h"
#include "platform/Screen.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune {

// One connected display. The functions below read NSScreen and belong to the main thread.
struct ManagedScreen {
    // The display's persistent identifier: its UUID as the system prints it, or "display-" and its number
    // when the system gives none. This is what is stored as the user's choice.
    std::string uuid;

    // The display's number; valid until the displays change.
    DisplayID displayID = 0;

    // The name to show to the user, UTF-8.
    std::string localizedName;

    // The display's frame in global display coordinates (origin at the top left of the primary display, y
    // downwards), the space of event locations.
    Rect cgFrame;

    // Two records are the same display when their identifiers are equal to the letter, whatever else differs.
    friend bool operator==(const ManagedScreen& one, const ManagedScreen& other) {
        return one.uuid == other.uuid;
    }
};

// The displays that have a usable number, in the order of NSScreen.screens; the primary display comes first.
std::vector<ManagedScreen> allScreens();

// The first connected display with exactly that identifier, absent when there is none. Enumerates the
// displays afresh, unless `uuid` is absent.
std::optional<ManagedScreen> screenWithUUID(const std::optional<std::string>& uuid);

// The identifier of NSScreen.mainScreen, the display that holds the key window; made of its number when the
// system gives no UUID. Absent without a main display and when that has no usable number.
std::optional<std::string> mainScreenUUID();

// The screen's display number: the entry "NSScreenNumber" of its device description. Absent when the entry is
// missing or is no whole number between 0 and 4,294,967,295.
std::optional<DisplayID> displayIDOfScreen(const Screen& screen);

// The display's UUID as the system prints it; absent when the system gives none.
std::optional<std::string> uuidStringForDisplay(DisplayID displayID);

} // namespace kestrune
