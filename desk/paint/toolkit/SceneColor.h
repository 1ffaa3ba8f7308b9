// What the colours of a scene look like on the desk.
#pragma once

#include "desk/paint/mac/Palette.h"
#include "ui/Style.h"

namespace kestrune::desk {

Color sceneColor(const Palette& palette, ui::Color color);

} // namespace kestrune::desk
