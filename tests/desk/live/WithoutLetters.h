// Pictures of windows that no font has a part in, as each release of a font has other outlines and widths.
#pragma once

#include "desk/paint/mac/SystemPicture.h"

namespace kestrune::desk {

// Each text of the scene is the box that it was given, in its colour. Titles, which have no box, are not
// there.
WindowPicture withoutLetters(WindowPicture window);

// The boxes in a colour that nothing shines through; and over the letters, which can be seen wherever they
// reach further.
WindowPicture withOpaqueBoxes(WindowPicture window);
WindowPicture withCoveredLetters(WindowPicture window);

} // namespace kestrune::desk
