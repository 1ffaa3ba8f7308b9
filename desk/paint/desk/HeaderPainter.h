// The top of the window: title, state of the guard, pinned display, and the story of a scene.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/Canvas.h"

namespace kestrune::desk {

void paintHeader(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

} // namespace kestrune::desk
