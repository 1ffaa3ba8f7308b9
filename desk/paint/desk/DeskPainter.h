// Paints pictures of the desk.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/Chrome.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/desk/DisplayPainter.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/toolkit/CachedSprite.h"

#include <vector>

namespace kestrune::desk {

// The picture, cleared of all that is painted anew each time or kept apart: pictures that differ only in that
// share everything behind it.
DeskPicture withoutWhatMoves(DeskPicture picture);

// Keep one for each window: it remembers what stays the same from picture to picture.
class DeskPainter {
public:
    // Fills the window. One user unit of the context is one logical pixel; `window` is the size in them. Does
    // nothing for a window that has no area or a side longer than 16384.
    void paint(cairo_t* context, const DeskPicture& picture, Size window);

private:
    void paintStill(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout, Size window);
    void paintHousings(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout);
    void paintStage(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout,
                    bool hasMarks);

    // What is at a place in the window, large and without marks.
    void paintThroughGlass(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout,
                           Point place);

    Chrome chrome_;
    std::vector<HousingPainter> housings_; // by display
    // The subject is without what moves.
    CachedSprite<DeskPicture> still_{CAIRO_FORMAT_RGB24};
    StackPainter stack_;
    ImageStore images_;
};

} // namespace kestrune::desk
