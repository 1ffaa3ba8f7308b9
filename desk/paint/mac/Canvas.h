// What every painter of the desk paints with, for the length of one picture.
#pragma once

#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/ImageStore.h"
#include "desk/paint/toolkit/Text.h"

namespace kestrune::desk {

struct Canvas {
    cairo_t* context; // user units are the window's logical pixels
    TextPainter& text;
    ImageStore& images;
    const Palette& palette;
};

} // namespace kestrune::desk
