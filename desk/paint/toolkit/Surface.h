// Memory to paint a window's picture into, for a texture or a PNG file.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace kestrune::desk {

// Why a picture could not be made or written, for a person to read.
struct PaintError {
    std::string message;
};

class Surface {
public:
    // `window` is in logical pixels, `scale` the device pixels for each. Absent when either is not positive,
    // a side would exceed 16384 device pixels, or memory is short.
    static std::optional<Surface> create(Size window, double scale);

    // One user unit is one logical pixel. Borrowed; valid as long as the surface.
    cairo_t* context() const { return context_.get(); }

    int pixelWidth() const;
    int pixelHeight() const;

    // Bytes from one row to the next.
    int stride() const;

    // The finished pixels, row by row from the top: 32 bits each in native byte order, alpha in the highest
    // byte, then red, green and blue, premultiplied. Valid until the next painting.
    std::span<const std::byte> pixels() const;

    // Absent when the file was written.
    std::optional<PaintError> writePng(const std::string& path) const;

private:
    Surface(SurfaceHandle surface, ContextHandle context);

    SurfaceHandle surface_;
    ContextHandle context_;
};

} // namespace kestrune::desk
