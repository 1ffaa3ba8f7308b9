// The top of the window: title, state of the guard, pinned display, and the story of a scene.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

namespace kestrune::desk {

void paintHeader(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

} // namespace kestrune::desk
