// What happens to the displays.
#include "tests/shell/ShellUser.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

namespace kestrune::simulate {

namespace {

// Enumerating reads the list once more for each display, so many displays are slow, and no rule counts them.
constexpr std::size_t MostDisplays = 5;

} // namespace

std::string ShellUser::changeDisplays(const std::string& what, std::vector<sim::Display> displays) {
    putPrimaryAtOrigin(displays);
    const bool announced = random_.chance(0.8);
    session_->changeDisplays(displays, announced);
    return announced ? what : what + ", not announced yet";
}

std::string ShellUser::plug() {
    std::vector<sim::Display> displays = session_->model().connected();
    if (displays.size() >= MostDisplays) {
        return unplug();
    }
    displays.push_back(arrangement_.another(displays));
    const std::string what = displays.back().localizedName + " is plugged in";
    return changeDisplays(what, std::move(displays));
}

std::string ShellUser::unplug() {
    std::vector<sim::Display> displays = session_->model().connected();
    if (displays.empty()) {
        return plug();
    }
    const auto gone = displays.begin() + static_cast<std::ptrdiff_t>(random_.index(displays.size()));
    const std::string what = gone->localizedName + " is unplugged";
    displays.erase(gone);
    return changeDisplays(what, std::move(displays));
}

std::string ShellUser::unplugAll() { return changeDisplays("all displays are unplugged", {}); }

std::string ShellUser::renumber() {
    return changeDisplays("the displays get other numbers",
                          arrangement_.renumbered(session_->model().connected()));
}

std::string ShellUser::rearrange() {
    std::vector<sim::Display> displays = session_->model().connected();
    if (!displays.empty() && random_.chance(0.4)) {
        const std::size_t first = random_.index(displays.size());
        std::rotate(displays.begin(), displays.begin() + static_cast<std::ptrdiff_t>(first), displays.end());
        return changeDisplays("another display becomes the primary one", std::move(displays));
    }
    return changeDisplays("the displays get other places and sizes",
                          arrangement_.rearranged(std::move(displays)));
}

std::string ShellUser::rename() {
    static constexpr std::array<const char*, 5> Names{"Studio Display", "Studio Display", "",
                                                      "  \xC3\x89\x63ran (2)  ", "Main"};
    std::vector<sim::Display> displays = session_->model().connected();
    if (displays.empty()) {
        return plug();
    }
    sim::Display& display = displays[random_.index(displays.size())];
    const std::string what = display.localizedName + " gets another name";
    display.localizedName = random_.pick(Names);
    return changeDisplays(what, std::move(displays));
}

std::string ShellUser::readInPassing() {
    std::deque<std::vector<sim::Display>> reads(1 + random_.index(8));
    for (std::vector<sim::Display>& read : reads) {
        const bool isEmpty = random_.chance(0.3);
        for (const sim::Display& display : session_->model().connected()) {
            if (!isEmpty && random_.chance(0.7)) {
                read.push_back(display);
            }
        }
    }
    session_->scriptReads(reads);
    return "the next " + std::to_string(reads.size()) + " readings are empty or partial";
}

std::string ShellUser::changeMain() {
    const std::size_t count = session_->model().connected().size();
    if (count == 0 || random_.chance(0.25)) {
        session_->setMain(std::nullopt);
        return "no display is the main one";
    }
    const std::size_t index = random_.index(count + 1);
    session_->setMain(index);
    return "the display at place " + std::to_string(index) + " becomes the main one";
}

std::string ShellUser::failUUIDStrings() {
    const bool fail = random_.chance(0.4);
    session_->setUUIDStringsFail(fail);
    return fail ? "the system makes no UUID strings" : "the system makes UUID strings";
}

} // namespace kestrune::simulate
