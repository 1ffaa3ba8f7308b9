// The connected displays, as AppKit lists them.
//
// Source: AppKit, NSScreen.h.
#pragma once

#include "base/Geometry.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune {

// An entry of a screen's device description: a whole number, another number, or a string.
using DeviceDescriptionValue = std::variant<std::int64_t, double, std::string>;

// A retained NSScreen. It keeps describing its display after that was disconnected.
class Screen {
public:
    // NSScreen.screens. The first entry is the primary display, whose bottom-left corner is the origin of
    // AppKit's screen coordinates. The list may be empty or partial for a moment while displays change.
    static std::vector<Screen> screens();

    // NSScreen.mainScreen: the display that holds the key window; absent when there is none.
    static std::optional<Screen> mainScreen();

    // NSScreen.deviceDescription[key].
    std::optional<DeviceDescriptionValue> deviceDescription(std::string_view key) const;

    // NSScreen.localizedName, UTF-8.
    std::string localizedName() const;

    // NSScreen.frame, in AppKit screen coordinates.
    Rect frame() const;

private:
    struct State;
    explicit Screen(std::shared_ptr<const State> state);

    std::shared_ptr<const State> state_;
};

} // namespace kestrune
