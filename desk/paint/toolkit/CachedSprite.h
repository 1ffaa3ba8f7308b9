// A part in front of the rest of the picture that is kept until what it shows changes.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"

#include <functional>
#include <utility>

namespace kestrune::desk {

// The device pixels of an area under a context's transformation, which neither turns nor slants.
struct SpriteGrid {
    double scale = 1; // device pixels for each user unit
    double deviceScale = 1;
    Point phase; // from the corner of the first pixel to that of the area, in device pixels
    Size pixels;

    friend bool operator==(const SpriteGrid&, const SpriteGrid&) = default;
};
struct SpritePlace {
    SpriteGrid grid;
    Point corner; // of the first pixel, in device pixels
};
SpritePlace spritePlace(cairo_t* context, const Rect& area);

// A context with memory of that format for the grid's pixels, whose area begins at the same user's
// coordinates.
ContextHandle makeSprite(const SpriteGrid& grid, Point areaOrigin, cairo_format_t format);

// Whether it is worth its memory: not when it is very large, nor when next to nothing of the area is inside
// of the context's clip.
bool isWorthKeeping(cairo_t* context, const Rect& area, const SpritePlace& place);

void paintSprite(cairo_t* context, cairo_t* sprite, const SpritePlace& place);

// `Subject` is the value that decides what the sprite shows; two that compare equal must give the same
// picture.
template <typename Subject>
class CachedSprite {
public:
    // One without transparency is faster.
    explicit CachedSprite(cairo_format_t format = CAIRO_FORMAT_ARGB32) : format_(format) {}

    // `extent` encloses all that is to be seen of what `paintAnew` paints, in the same coordinates as the
    // context's. `paintAnew` is called only when the subject, or how the extent lies on the device's pixels,
    // is another than last time.
    void paint(cairo_t* context, const Rect& extent, Subject subject,
               const std::function<void(cairo_t*)>& paintAnew) {
        const SpritePlace place = spritePlace(context, extent);
        if (!isWorthKeeping(context, extent, place)) {
            const SavedState saved{context};
            cairo_rectangle(context, extent.minX(), extent.minY(), extent.width(), extent.height());
            cairo_clip(context);
            paintAnew(context);
            return;
        }
        if (!sprite_ || place.grid != grid_ || !(subject == subject_)) {
            sprite_ = makeSprite(place.grid, {extent.minX(), extent.minY()}, format_);
            paintAnew(sprite_.get());
            grid_ = place.grid;
            subject_ = std::move(subject);
        }
        paintSprite(context, sprite_.get(), place);
    }

private:
    cairo_format_t format_;
    ContextHandle sprite_;
    SpriteGrid grid_;
    Subject subject_;
};

} // namespace kestrune::desk
