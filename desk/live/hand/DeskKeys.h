// What the keys do to the desk.
#pragma once

#include "desk/live/world/LiveDesk.h"
#include "desk/paint/desk/DeskPicture.h"

#include <vector>

namespace kestrune::desk {

// Every key of the window, those of the window itself included.
const std::vector<KeyHint>& keyLegend();

// Letters in lower case. False for a key that does nothing to the desk.
bool pressDeskKey(LiveDesk& desk, char key);

} // namespace kestrune::desk
