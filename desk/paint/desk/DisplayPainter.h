// One display: its housing with the wallpaper.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/toolkit/CachedSprite.h"

#include <cstddef>
#include <tuple>

namespace kestrune::desk {

// From here on the context's user units are points of the display in global display coordinates, and only its
// screen is painted on.
void enterDisplay(cairo_t* context, const DisplayPlace& place);

// The housing of one display, with the shadow that it casts and the wallpaper. All shadows come before all
// housings, so that none falls onto a screen. Keeps what it has painted for pictures in which only the part
// of the displays that is shown is another.
class HousingPainter {
public:
    void paintShadow(cairo_t* context, const DisplayPlace& place, bool dark);
    void paint(cairo_t* context, const DisplayPlace& place, std::size_t wallpaper, bool dark);

private:
    // Size of the display, scale, wallpaper and whether it is dark.
    using Subject = std::tuple<Size, double, std::size_t, bool>;

    CachedSprite<Subject> shadow_;
    CachedSprite<Subject> housing_;
};

// What of the housing lies in front of the corners of what was painted on the display.
void paintScreenCorners(cairo_t* context, const Palette& palette, const DisplayPlace& place);

} // namespace kestrune::desk
