// Sizes of text, for layouts that are also needed where nothing is painted.
#pragma once

#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/TextPainter.h"

#include <string_view>

namespace kestrune::desk {

// Keep one: making it costs more than measuring.
class TextMeasure {
public:
    TextMeasure();

    double width(std::string_view text, const TextStyle& style);

private:
    SurfaceHandle surface_;
    ContextHandle context_;
    TextPainter text_;
};

} // namespace kestrune::desk
