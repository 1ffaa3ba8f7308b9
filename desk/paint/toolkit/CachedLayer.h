// A part of the picture that is kept until what it shows changes.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"

#include <functional>
#include <utility>

namespace kestrune::desk {

// Device pixels for one user unit of the context.
double pixelsPerUnit(cairo_t* context);

// Opaque memory for a whole window; one user unit is one logical pixel.
SurfaceHandle makeLayerSurface(Size window, double pixelsPerUnit);

// Covers the window with a surface of the context's own resolution.
void coverWithLayer(cairo_t* context, cairo_surface_t* layer);

// `Subject` is the value that decides what the layer shows; two that compare equal must give the same
// picture.
template <typename Subject>
class CachedLayer {
public:
    // Covers the window with the layer. `paintAnew` paints all of it, and is called only when the subject,
    // the window or the context's resolution is another than last time.
    void paint(cairo_t* context, Size window, Subject subject,
               const std::function<void(cairo_t*)>& paintAnew) {
        const double resolution = pixelsPerUnit(context);
        if (!surface_ || resolution != resolution_ || window != window_ || !(subject == subject_)) {
            surface_ = makeLayerSurface(window, resolution);
            const ContextHandle layerContext{cairo_create(surface_.get())};
            paintAnew(layerContext.get());
            resolution_ = resolution;
            window_ = window;
            subject_ = std::move(subject);
        }
        coverWithLayer(context, surface_.get());
    }

private:
    SurfaceHandle surface_;
    double resolution_ = 0;
    Size window_;
    Subject subject_;
};

} // namespace kestrune::desk
