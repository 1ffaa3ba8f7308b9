// What happens to the displays.
#include "tests/random/application/ShellUser.h"

#include <array>
#include <optional>
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
    DisplayChange change = arrangement_.withoutOne(std::move(displays));
    return changeDisplays(change.what, std::move(change.displays));
}

std::string ShellUser::unplugAll() { return changeDisplays("all displays are unplugged", {}); }

std::string ShellUser::renumber() {
    return changeDisplays("the displays get other numbers",
                          arrangement_.renumbered(session_->model().connected()));
}

std::string ShellUser::rearrange() {
    DisplayChange change = arrangement_.movedAround(session_->model().connected());
    return changeDisplays(change.what, std::move(change.displays));
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
    const auto reads = arrangement_.readingsInPassing(session_->model().connected());
    session_->scriptReads(reads);
    return "the next " + std::to_string(reads.size()) + " readings are empty or partial";
}

std::string ShellUser::changeMain() {
    const std::optional<std::size_t> index = arrangement_.main(session_->model().connected().size(), 0.25);
    session_->setMain(index);
    return index ? "the display at place " + std::to_string(*index) + " becomes the main one"
                 : "no display is the main one";
}

std::string ShellUser::failUUIDStrings() {
    const bool fail = random_.chance(0.4);
    session_->setUUIDStringsFail(fail);
    return fail ? "the system makes no UUID strings" : "the system makes UUID strings";
}

} // namespace kestrune::simulate
