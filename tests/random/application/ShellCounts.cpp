#include "tests/random/application/ShellCounts.h"

#include "tests/random/common/SessionRun.h"

namespace kestrune::simulate {

namespace {

// In the order of the enumerators.
constexpr std::array<const char*, static_cast<std::size_t>(Happening::total)> Names{
    "launches",
    "of them without permission",
    "quits from the status menu",
    "quits from the main menu",
    "other terminations",
    "kills",
    "delegates let go",
    "status menus opened",
    "main menus opened",
    "lines chosen",
    "of them after the delegate was gone",
    "displays selected",
    "switches off",
    "switches on",
    "rebuilds before setup",
    "rebuilds after setup",
    "menus marked by the stored choice",
    "marked as the main display",
    "marked as the first display",
    "unmarked by a stale choice",
    "without displays",
    "display changes followed",
    "of them while stopped",
    "refreshes",
    "write-backs",
    "starts",
    "of them while a menu was open",
    "refused starts",
    "stops",
    "permissions found by the menu",
    "ticks without permission",
    "late ticks",
    "watchers ended by a tick",
    "by the menu",
    "by the wizard",
    "without the delegate",
    "welcome decisions with permission",
    "without permission",
    "without the delegate",
    "wizards shown",
    "of them past the introduction",
    "wizard buttons pressed",
    "permissions requested",
    "windows become key",
    "wizard ticks in time",
    "late",
    "with something new",
    "wizards closed",
    "wizards finished",
    "Settings windows made",
    "shown again",
    "Settings closed",
    "windows closed beside others",
    "login switches flipped",
    "login switches corrected when shown",
    "login items registered",
    "left for approval",
    "registered again in vain",
    "unregistered",
    "refused",
    "bugs reported",
    "addresses that nobody opened",
    "updaters started",
    "not started",
    "checks by the user",
    "without an updater",
    "on schedule",
    "during a session of updates",
    "raises after 300 ms",
    "updates found",
    "alerts shown",
    "updates and alerts dismissed",
    "sessions of updates announced",
    "announced while regular",
    "announced again",
    "policies restored",
    "kept at the end",
    "sessions that end without a Dock icon over windows",
    "with a Dock icon and no window",
    "updater's windows floated",
    "other windows floated",
    "windows raised by their class",
    "of them kept from hiding",
    "steps with several windows",
    "with an alert",
};

} // namespace

ShellCounts& ShellCounts::operator+=(const ShellCounts& other) {
    for (std::size_t index = 0; index < numbers_.size(); ++index) {
        numbers_[index] += other.numbers_[index];
    }
    return *this;
}

void ShellCounts::print() const {
    for (std::size_t index = 0; index < numbers_.size(); ++index) {
        printCount(Names[index], numbers_[index]);
    }
}

} // namespace kestrune::simulate
