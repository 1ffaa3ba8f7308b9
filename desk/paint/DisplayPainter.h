// One display: its housing with the wallpaper, and the caption with the pin.
#pragma once

#include "desk/paint/Canvas.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

#include <cstddef>
#include <optional>

namespace kestrune::desk {

// The shadow that the housing casts. All shadows come before all housings, so that none falls onto a screen.
void paintHousingShadow(cairo_t* context, const Palette& palette, const DisplayPlace& place);

// The housing and the wallpaper.
void paintHousing(cairo_t* context, const Palette& palette, const DisplayPlace& place, std::size_t wallpaper);

// Where the caption with a display's name and size stands, and the badge of a pinned display after it, in
// window coordinates. A display that is drawn too small has no caption, and the badge alone.
struct CaptionPlace {
    std::optional<Rect> caption;
    std::optional<Rect> badge;
    bool showsSize = false;
};
CaptionPlace captionPlace(const Canvas& canvas, const DisplayPlace& place, double scale,
                          const DisplayPicture& display);

void paintCaption(const Canvas& canvas, const CaptionPlace& place, const DisplayPicture& display);

} // namespace kestrune::desk
