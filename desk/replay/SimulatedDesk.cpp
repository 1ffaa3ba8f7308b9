#include "desk/replay/SimulatedDesk.h"

#include <string>

namespace kestrune::desk {

namespace {

// Any margin that is not greater than 0 stands for this one.
constexpr double UsualMargin = DockGuardController::DefaultBlockMargin;

sim::SessionOptions sessionOptions(const DeskSetup& setup) {
    sim::SessionOptions options;
    options.displays = connectDisplays(setup.displays);
    options.recordJournal = false;
    options.defaults.insert_or_assign("isEnabled", sim::PropertyList{setup.guardOn});
    options.defaults.insert_or_assign("pinnedScreenUUID",
                                      sim::PropertyList{*options.displays.at(setup.pinned).uuid});
    if (setup.margin) {
        options.defaults.insert_or_assign("blockMargin", sim::PropertyList{*setup.margin});
    }
    return options;
}

JudgedDesk judgedDesk(const DeskSetup& setup) {
    const double margin = setup.margin.value_or(UsualMargin);
    return {setup.displays, setup.pinned, setup.guardOn, margin > 0 ? margin : UsualMargin};
}

} // namespace

std::vector<sim::Display> connectDisplays(const std::vector<Rect>& bounds) {
    std::vector<sim::Display> displays;
    for (std::size_t index = 0; index < bounds.size(); ++index) {
        const auto displayID = static_cast<DisplayID>(index + 1);
        const std::string name = index == 0 ? "Built-in Display" : "Display " + std::to_string(displayID);
        displays.push_back(sim::makeDisplay(displayID, name, bounds[index]));
    }
    return displays;
}

SimulatedDesk::SimulatedDesk(const DeskSetup& setup)
    : judged_(judgedDesk(setup)), session_(sessionOptions(setup)), host_(session_) {
    session_.dock().place(static_cast<DisplayID>(setup.pinned + 1));
}

std::size_t SimulatedDesk::dockDisplay() { return session_.dock().display().value_or(1) - 1; }

} // namespace kestrune::desk
