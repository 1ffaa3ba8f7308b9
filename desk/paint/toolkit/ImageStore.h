// Images from PNG files: status items and the icons of applications.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/Color.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace kestrune::desk {

// Reads each file once, on its first use.
class ImageStore {
public:
    // Borrowed; valid as long as the store. Null for a file that is missing or no PNG.
    cairo_surface_t* image(const std::string& path);

private:
    std::unordered_map<std::string, SurfaceHandle> images_;
};

// Fills the area with the image, or with a colour where the image is opaque.
void paintImage(cairo_t* context, cairo_surface_t* image, const Rect& area,
                const std::optional<Color>& tint = std::nullopt);

} // namespace kestrune::desk
