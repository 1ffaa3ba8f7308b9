// What a simulated session starts with.
#pragma once

#include "sim/formats/BundleContents.h"
#include "sim/formats/PropertyList.h"
#include "sim/hardware/Display.h"
#include "sim/hardware/Dock.h"
#include "sim/services/Accessibility.h"
#include "sim/services/Surroundings.h"
#include "sim/services/UpdateSupply.h"
#include "ui/layout/Layout.h"

#include <vector>

namespace kestrune::sim {

struct SessionOptions {
    std::vector<Display> displays = {makeDisplay(1, "Built-in Display", {0, 0, 1512, 982})};
    Permission permission = Permission::granted;
    PropertyListDictionary defaults = {};
    BundleContents bundle = {};
    Surroundings surroundings = {};
    UpdateFramework updateFramework = UpdateFramework::working;
    bool recordJournal = true;

    // Whether the visible pointer goes where an active tap put the event. Not confirmed for session taps.
    bool cursorFollowsEvents = true;

    Duration dockDwell = Dock::DefaultDwell;

    // How large texts and controls are; must outlive the session. Null: every character is equally wide.
    const ui::Measurer* measurer = nullptr;
};

} // namespace kestrune::sim
