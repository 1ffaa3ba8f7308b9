// The persistent identifier that the system gives to a display.
//
// Source: ColorSync, ColorSyncDevice.h (the functions live there, not in CoreGraphics); CoreFoundation,
// CFUUID.h.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace kestrune {

// CGDirectDisplayID: the number of a connected display. It may change between connections and restarts.
using DisplayID = std::uint32_t;

// A retained CFUUIDRef.
class DisplayUUID {
public:
    // CGDisplayCreateUUIDFromDisplayID. Absent when the system knows no UUID for the display.
    static std::optional<DisplayUUID> createFromDisplayID(DisplayID displayID);

    // CFUUIDCreateString with the default allocator: upper-case hexadecimal, 8-4-4-4-12. The platform's
    // string is released before this returns. Absent when the platform makes no string.
    std::optional<std::string> createString() const;

private:
    struct State;
    explicit DisplayUUID(std::shared_ptr<const State> state);

    std::shared_ptr<const State> state_;
};

} // namespace kestrune
