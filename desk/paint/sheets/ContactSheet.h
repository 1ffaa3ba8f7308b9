// Pictures of windows alone, and of many of them next to each other.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/SystemPicture.h"
#include "desk/paint/toolkit/Surface.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrune::desk {

struct SheetCell {
    std::string caption;
    WindowPicture window; // wherever it is on its display
    bool dark = false;
};

struct ContactSheet {
    std::string title;
    std::size_t columns = 1;
    std::vector<SheetCell> cells; // row by row
};

// Where the cells' windows go, in logical pixels of the sheet; their shadows reach further.
struct ContactSheetLayout {
    Size size;
    std::vector<Rect> cells; // with captions
    std::vector<Rect> windows;
};
ContactSheetLayout contactSheetLayout(const ContactSheet& sheet);

void paintContactSheet(cairo_t* context, const ContactSheet& sheet);

// The file is a PNG with `scale` device pixels for each logical pixel. Absent when it was written.
std::optional<PaintError> writeContactSheet(const std::string& path, const ContactSheet& sheet, double scale);
std::optional<PaintError> writeWindowPicture(const std::string& path, const WindowPicture& window, bool dark,
                                             double scale);

} // namespace kestrune::desk
