// How large the system's controls are.
//
// Source: docs/MAC_FACTS.md, "Views".
#pragma once

#include "base/Geometry.h"
#include "ui/Style.h"

namespace kestrune::ui {

Size switchSize(ControlSize size);

} // namespace kestrune::ui
