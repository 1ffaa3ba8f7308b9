// A small part in front of the rest of the picture that is kept until what it shows changes.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/CachedLayer.h"
#include "desk/paint/CairoObjects.h"

#include <functional>
#include <utility>

namespace kestrune::desk {

// The rectangle, enlarged so that its edges fall on whole device pixels.
Rect onDevicePixels(const Rect& area, double pixelsPerUnit);

// Transparent memory for an area whose edges fall on whole device pixels.
SurfaceHandle makeSpriteSurface(Size area, double pixelsPerUnit);

void paintSprite(cairo_t* context, cairo_surface_t* sprite, Point topLeft);

// `Subject` is the value that decides what the sprite shows, its place included; two that compare equal must
// give the same picture.
template <typename Subject>
class CachedSprite {
public:
    // `extent` encloses all that `paintAnew` paints, in the same coordinates as the context's. `paintAnew` is
    // called only when the subject, the extent or the context's resolution is another than last time.
    void paint(cairo_t* context, const Rect& extent, Subject subject,
               const std::function<void(cairo_t*)>& paintAnew) {
        const double resolution = pixelsPerUnit(context);
        const Rect area = onDevicePixels(extent, resolution);
        if (!surface_ || resolution != resolution_ || area != area_ || !(subject == subject_)) {
            surface_ = makeSpriteSurface(area.size, resolution);
            const ContextHandle spriteContext{cairo_create(surface_.get())};
            cairo_translate(spriteContext.get(), -area.minX(), -area.minY());
            paintAnew(spriteContext.get());
            resolution_ = resolution;
            area_ = area;
            subject_ = std::move(subject);
        }
        paintSprite(context, surface_.get(), area.origin);
    }

    // Gives the memory back while the part is not shown.
    void forget() { surface_.reset(); }

private:
    SurfaceHandle surface_;
    double resolution_ = 0;
    Rect area_;
    Subject subject_;
};

} // namespace kestrune::desk
