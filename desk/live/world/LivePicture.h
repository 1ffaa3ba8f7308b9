// Pictures of a desk as it is now.
#pragma once

#include "desk/live/world/LiveDesk.h"
#include "desk/paint/desk/DeskPicture.h"
#include "replay/Report.h"
#include "replay/SimulatedDesk.h"

namespace kestrune::desk {

// The size of a window or picture unless something else is wanted, in logical pixels.
inline constexpr Size UsualWindow{1440, 900};

// With the marks as old as they are now. What the keys do is left to whoever has them.
DeskPicture pictureOf(LiveDesk& desk);

// The desk in the end, and a sentence on what came of the recording.
DeskPicture pictureAfterReplay(replay::SimulatedDesk& desk, const replay::Report& report);

} // namespace kestrune::desk
