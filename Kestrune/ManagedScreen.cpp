#include "Kestrune/ManagedScreen.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <variant>

namespace kestrune {

namespace {

constexpr double LargestDisplayID = std::numeric_limits<DisplayID>::max();

std::string identifierOfDisplay(DisplayID displayID) {
    std::optional<std::string> uuid = uuidStringForDisplay(displayID);
    if (!uuid) {
        return "display-" + std::to_string(displayID);
    }
    return *std::move(uuid);
}

// Turns a frame in AppKit screen coordinates upside down, always against the primary display: that is where
// the origin of event locations is, wherever the key window may be.
Rect globalFrame(const Rect& frame) {
    const std::vector<Screen> screens = Screen::screens();
    if (screens.empty()) {
        return frame;
    }
    const double primaryHeight = screens.front().frame().height();
    return {frame.origin.x, primaryHeight - frame.origin.y - frame.height(), frame.width(), frame.height()};
}

} // namespace

std::vector<ManagedScreen> allScreens() {
    std::vector<ManagedScreen> result;
    for (const Screen& screen : Screen::screens()) {
        const std::optional<DisplayID> displayID = displayIDOfScreen(screen);
        if (!displayID) {
            continue;
        }
        std::string uuid = identifierOfDisplay(*displayID);
        std::string name = screen.localizedName();
        const Rect frame = globalFrame(screen.frame());
        result.push_back({std::move(uuid), *displayID, std::move(name), frame});
    }
    return result;
}

std::optional<ManagedScreen> screenWithUUID(const std::optional<std::string>& uuid) {
    if (!uuid) {
        return std::nullopt;
    }
    std::vector<ManagedScreen> screens = allScreens();
    const auto match = std::find_if(screens.begin(), screens.end(),
                                    [&](const ManagedScreen& screen) { return screen.uuid == *uuid; });
    if (match == screens.end()) {
        return std::nullopt;
    }
    return std::move(*match);
}

std::optional<std::string> mainScreenUUID() {
    const std::optional<Screen> mainScreen = Screen::mainScreen();
    if (!mainScreen) {
        return std::nullopt;
    }
    const std::optional<DisplayID> displayID = displayIDOfScreen(*mainScreen);
    if (!displayID) {
        return std::nullopt;
    }
    return identifierOfDisplay(*displayID);
}

std::optional<DisplayID> displayIDOfScreen(const Screen& screen) {
    const std::optional<DeviceDescriptionValue> number = screen.deviceDescription("NSScreenNumber");
    if (!number) {
        return std::nullopt;
    }
    if (const auto* whole = std::get_if<std::int64_t>(&*number)) {
        const bool fits = *whole >= 0 && *whole <= std::numeric_limits<DisplayID>::max();
        return fits ? std::optional(static_cast<DisplayID>(*whole)) : std::nullopt;
    }
    if (const auto* real = std::get_if<double>(&*number)) {
        const bool fits = *real >= 0 && *real <= LargestDisplayID && std::trunc(*real) == *real;
        return fits ? std::optional(static_cast<DisplayID>(*real)) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<std::string> uuidStringForDisplay(DisplayID displayID) {
    const std::optional<DisplayUUID> uuid = DisplayUUID::createFromDisplayID(displayID);
    return uuid ? uuid->createString() : std::nullopt;
}

} // namespace kestrune
