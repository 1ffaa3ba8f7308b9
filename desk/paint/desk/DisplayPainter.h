// One display: its housing with the wallpaper, and the caption with the pin.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/CachedSprite.h"
#include "desk/paint/toolkit/Canvas.h"

#include <cstddef>
#include <optional>

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
    struct Subject {
        Size size; // of the display
        double scale = 1;
        std::size_t wallpaper = 0;
        bool dark = false;

        friend bool operator==(const Subject&, const Subject&) = default;
    };

    CachedSprite<Subject> shadow_;
    CachedSprite<Subject> housing_;
};

// What of the housing lies in front of the corners of what was painted on the display.
void paintScreenCorners(cairo_t* context, const Palette& palette, const DisplayPlace& place);

// Where the display's name and size stand below what the stage shows of its housing, and the badge of a
// pinned display after them, in window coordinates. A display that is drawn too small has none of them, nor
// one of which too little is shown.
struct CaptionPlace {
    Rect name;
    std::optional<Rect> size;
    std::optional<Rect> badge;
};
std::optional<CaptionPlace> captionPlace(TextPainter& text, const DisplayPlace& place,
                                         const DisplayPicture& display, const Rect& stage);

void paintCaption(const Canvas& canvas, const CaptionPlace& place, const DisplayPicture& display);

} // namespace kestrune::desk
