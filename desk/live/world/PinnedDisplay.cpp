#include "desk/live/world/PinnedDisplay.h"

#include "replay/StoredChoices.h"

#include <algorithm>
#include <optional>
#include <string>

namespace kestrune::desk {

const sim::Display* pinnedDisplay(sim::Session& session) {
    const auto& connected = session.displays().connected();
    const std::optional<std::string> choice = replay::StoredChoices(session.defaults()).pinnedScreenUUID();
    const auto chosen = std::find_if(connected.begin(), connected.end(), [&](const sim::Display& display) {
        return choice && display.uuid == choice;
    });
    if (chosen != connected.end()) {
        return &*chosen;
    }
    if (const auto main = session.displays().main()) {
        return session.displays().withID(main->displayID);
    }
    return connected.empty() ? nullptr : &connected.front();
}

} // namespace kestrune::desk
