// Paints pictures of the desk.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/CachedLayer.h"
#include "desk/paint/CairoObjects.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

#include <cstddef>
#include <vector>

namespace kestrune::desk {

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
    // All that does not change with every event; the subject has the rest cleared.
    CachedLayer<DeskPicture> still_;
};

} // namespace kestrune::desk
