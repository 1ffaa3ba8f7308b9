// Whether the guard did right, decided without asking it.
#pragma once

#include "base/Geometry.h"
#include "replay/GuardRule.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <vector>

namespace kestrune::replay {

// The arrangement and the choices that a pointer event is judged by.
struct JudgedDesk {
    std::vector<Rect> displays; // global display coordinates, the primary first
    std::size_t pinned = 0;     // index into `displays`
    bool guardOn = true;
    double margin = UsualBlockMargin; // depth of the blocked band in points, greater than 0
};

// True when the event was delivered where a held pointer may not be, or changed where nothing may change.
bool violatesTheRule(const JudgedDesk& desk, const sim::Delivery& delivery);

} // namespace kestrune::replay
