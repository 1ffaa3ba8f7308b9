// The functions of Quartz event services, display services and Accessibility that the binding calls.
//
// Declared here, so that the binding also compiles where no SDK is at hand; event types and tap options are
// the seam's enumerators, which have the platform's values and width. Source: CGEvent.h, CGEventTypes.h;
// ColorSyncDevice.h; HIServices/AXUIElement.h.
#pragma once

#include "mac/c/CoreFoundation.h"
#include "platform/EventTap.h"

#include <cstdint>

// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the names
// are the platform's.
extern "C" {

using CGEventRef = kestrune::Event*;

struct CGPoint {
    double x;
    double y;
};

CFMachPortRef CGEventTapCreate(kestrune::EventTapLocation location, kestrune::EventTapPlacement placement,
                               kestrune::EventTapOptions options, kestrune::EventMask eventsOfInterest,
                               kestrune::EventTapCallback callback, void* userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
CGPoint CGEventGetLocation(const kestrune::Event* event);
void CGEventSetLocation(CGEventRef event, CGPoint location);

CFUUIDRef CGDisplayCreateUUIDFromDisplayID(std::uint32_t displayID);

unsigned char AXIsProcessTrusted();
unsigned char AXIsProcessTrustedWithOptions(CFDictionaryRef options);
extern CFStringRef kAXTrustedCheckOptionPrompt;

} // extern "C"
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
