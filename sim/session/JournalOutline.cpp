#include "sim/session/JournalOutline.h"

#include <algorithm>
#include <array>
#include <iterator>

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

std::vector<std::string> outline(const std::vector<std::string>& journal) {
    std::vector<std::string> steps;
    std::copy_if(journal.begin(), journal.end(), std::back_inserter(steps),
                 [](const std::string& line) { return !isDetail(line); });
    return steps;
}

} // namespace kestrune::sim
