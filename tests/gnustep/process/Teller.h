// What the standard output tells a hand at the mouse: lines of words with tabs between.
#pragma once

#include "base/Geometry.h"
#include "mac/vocabulary/Runtime.h"

#include <string>

namespace kestrune::gnustep {

void tell(const std::string& line);

// The number of the X window of the view and an area of the view on the X screen: x, y, width and height in
// pixels from the top left.
std::string placeOf(id view, const Rect& area);

Size screenSize();

} // namespace kestrune::gnustep
