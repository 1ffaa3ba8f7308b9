// Plays a recording on a simulated desk.
#pragma once

#include "replay/Report.h"
#include "replay/SimulatedDesk.h"
#include "replay/recording/Recording.h"

#include <functional>

namespace kestrune::replay {

// Called for each event that was delivered, with its number from 0.
using DeliveryObserver = std::function<void(std::uint64_t, const sim::Delivery&)>;

// The recording was made on one display. Its motion is stretched to the rectangle around all displays, and
// the simulated pointer moves by the differences, so that it travels over all of them. The session's clock
// follows the recording's.
Report play(const Recording& recording, SimulatedDesk& desk, const DeliveryObserver& observer);

} // namespace kestrune::replay
