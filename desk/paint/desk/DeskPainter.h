// Paints pictures of the desk.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DisplayPainter.h"
#include "desk/paint/desk/StackPainter.h"
#include "desk/paint/toolkit/CachedLayer.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/Canvas.h"

#include <vector>

namespace kestrune::desk {

// The picture, cleared of all that is painted anew each time or kept apart: pictures that differ only in that
// share everything behind it.
DeskPicture withoutWhatMoves(DeskPicture picture);

// Keep one for each window: it remembers what stays the same from picture to picture.
class DeskPainter {
public:
    static constexpr double LongestSide = 16384;

    // Fills the window. One user unit of the context is one logical pixel; `window` is the size in them. Does
    // nothing for a window that has no area or a side longer than LongestSide.
    void paint(cairo_t* context, const DeskPicture& picture, Size window);

private:
    void paintStill(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout, Size window);
    void paintStage(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout);

    void paintHousings(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout);

    std::vector<HousingPainter> housings_; // by display
    // The subject is without what moves.
    CachedLayer<DeskPicture> still_;
    StackPainter stack_;
    ImageStore images_;
};

} // namespace kestrune::desk
