// The platform's colours for those of a view.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "ui/Style.h"

namespace kestrune::mac {

// Borrowed from the innermost pool. Which colour it is, light or dark, the platform decides each time when it
// draws with it.
id platformColor(ui::Color color);

// From 0 for invisible to 1; for the appearance in which something is being drawn now.
id colorWithOpacity(ui::Color color, double opacity);

} // namespace kestrune::mac
