#include "replay/SimulatedDesk.h"

#include "replay/StoredChoices.h"

#include <string>

namespace kestrune::replay {

namespace {

sim::SessionOptions sessionOptions(const DeskSetup& setup) {
    sim::SessionOptions options;
    options.displays = connectDisplays(setup.displays);
    options.recordJournal = false;
    store({setup.guardOn, options.displays.at(setup.pinned).uuid, setup.margin}, options.defaults);
    return options;
}

JudgedDesk judgedDesk(const DeskSetup& setup) {
    JudgedDesk judged{{}, setup.guardOn, bandDepth(setup.margin.value_or(0))};
    for (std::size_t index = 0; index < setup.displays.size(); ++index) {
        judged.displays.push_back({setup.displays[index], index == setup.pinned});
    }
    return judged;
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

} // namespace kestrune::replay
