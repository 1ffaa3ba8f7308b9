#include "sim/session/JournalOutline.h"

#include <algorithm>
#include <array>

namespace kestrune::sim {

namespace {

constexpr std::array<std::string_view, 11> Details = {
    "-[NSMenuItem ",       "+[NSMenuItem ",     "-[NSMenu ",       "-[NSBundle localized",
    "NSBundle.mainBundle", "-[NSScreen ",       "NSScreen.",       "CGDisplayCreateUUID",
    "CFUUIDCreateString",  "CFRelease(string)", "CFRelease(uuid)",
};

} // namespace

bool isDetail(std::string_view line) {
    return std::any_of(Details.begin(), Details.end(),
                       [line](std::string_view detail) { return line.starts_with(detail); });
}

} // namespace kestrune::sim
