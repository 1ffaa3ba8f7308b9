// Small pictures of the desk next to each other.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/Surface.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

class PictureSheet {
public:
    // Each picture is painted for a desk of that size, in logical pixels, and is `scale` times as large on
    // the sheet. At least one column.
    PictureSheet(std::string title, std::size_t columns, Size window, double scale);

    // Row by row. What is behind the picture is not kept, only how it looks.
    std::optional<PaintError> add(const std::string& caption, const DeskPicture& picture);

    // A PNG with one device pixel for each logical pixel. Absent when it was written.
    std::optional<PaintError> write(const std::string& path) const;

private:
    struct Cell {
        std::string caption;
        Surface picture;
    };

    Size size() const;
    Rect areaOf(std::size_t index) const;
    void paintCell(cairo_t* context, std::size_t index) const;

    std::string title_;
    std::size_t columns_;
    Size window_;
    double scale_;
    std::vector<Cell> cells_;
};

} // namespace kestrune::desk
