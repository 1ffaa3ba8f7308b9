// A user's way through the first-run wizard, with a look at its window at every stop.
#pragma once

#include "desk/live/gallery/TourHand.h"
#include "desk/live/world/LiveDesk.h"
#include "desk/live/world/LiveDeskSetup.h"
#include "desk/paint/mac/SystemPicture.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

// How the wizard's window looks while it shows one thing.
enum class WizardLook { inFront, pressed, focused, inBackground };

struct WizardShot {
    std::string state; // such as "waiting"
    WizardLook look = WizardLook::inFront;
    WindowPicture window;
};

// Every state of the wizard, in the order in which a user meets them: "intro", "permission", "waiting" and
// "granted", each in every look. A state that did not come about is missing. The session that it plays in
// must be the only one.
std::vector<WizardShot> takeWizardTour(LiveDeskSetup setup);

} // namespace kestrune::desk
