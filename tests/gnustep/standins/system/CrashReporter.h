// The system's crash reporter, which looks into the images of a process.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace kestrune::gnustep {

// Where it looks instead of into the image that is linked: what gives another one's section "__crash_info".
void lookForCrashReportIn(std::function<std::span<const std::uint8_t>()> section);

// What it would report, empty for nothing.
std::string crashReportMessage();

} // namespace kestrune::gnustep
