// A desk whose smaller second display is guarded.
#pragma once

#include "replay/Judge.h"

namespace kestrune::replay {

inline const JudgedDesk Desk{{{{0, 0, 1920, 1080}, true}, {{1920, 280, 1280, 800}}}};

} // namespace kestrune::replay
