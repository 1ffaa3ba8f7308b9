// Paints pictures of the desk.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/CachedLayer.h"
#include "desk/paint/CairoObjects.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"
#include "desk/paint/ImageStore.h"
#include "desk/paint/SystemPartsPainter.h"
#include "desk/paint/TextMeasure.h"

#include <cstddef>
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
    // The window's background, and the displays' housings and wallpapers.
    struct Backdrop {
        std::vector<Rect> bounds;
        std::vector<std::size_t> wallpapers;
        Rect content;
        bool dark = false;

        friend bool operator==(const Backdrop&, const Backdrop&) = default;
    };

    void paintBackdrop(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout, Size window);
    void paintStill(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout, Size window);

    CachedLayer<Backdrop> backdrop_;
    // The subject is without what moves.
    CachedLayer<DeskPicture> still_;
    SystemPartsPainter systemParts_;
    TextMeasure measure_;
    ImageStore images_;
};

} // namespace kestrune::desk
