// Texts of the length that translations are assumed to have.
#pragma once

#include "desk/live/world/LiveDeskSetup.h"

namespace kestrune::desk {

// With every text of the bundle 1.4 times as long.
LiveDeskSetup withLongTexts(LiveDeskSetup setup);

} // namespace kestrune::desk
