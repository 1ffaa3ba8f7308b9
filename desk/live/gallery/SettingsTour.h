// A user's way through the Settings window, with a look at it at every stop.
#pragma once

#include "desk/live/world/LiveDeskSetup.h"
#include "desk/paint/mac/SystemPicture.h"

#include <string>
#include <vector>

namespace kestrune::desk {

struct SettingsShot {
    std::string name;    // such as "switch-dragged"
    std::string caption; // for a person
    WindowPicture window;
};

// The window as it opens, with its switch on, held down and dragged, with a button held down, with the
// keyboard at the switch and at a button, and behind another application. One that did not come about is
// missing. The session that it plays in must be the only one.
std::vector<SettingsShot> takeSettingsTour(const LiveDeskSetup& setup);

// Only as it opens.
std::vector<SettingsShot> lookAtSettings(const LiveDeskSetup& setup, const std::string& name,
                                         const std::string& caption);

} // namespace kestrune::desk
