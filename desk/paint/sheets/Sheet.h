// Pictures of the desk and of single windows, and many of them next to each other.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/mac/SystemPicture.h"
#include "desk/paint/toolkit/Surface.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

// Something that is painted in logical pixels, from the top left.
struct Picture {
    Size size;
    std::function<void(cairo_t*)> paint;
};

// The desk fills a window of that size.
Picture pictureOfDesk(DeskPicture desk, Size window);

// What it shows of the displays there, alone.
Picture pictureOfStage(DeskPicture desk, Size window);

// The window alone, wherever it is on its display.
Picture pictureOfWindow(WindowPicture window, bool dark);

struct SheetCell {
    std::string caption;
    Picture picture;
};

struct Sheet {
    std::string title;
    std::size_t columns = 1;
    double scale = 1; // of each picture on the sheet
    bool dark = false;
    std::vector<SheetCell> cells; // row by row
};

// Where the cells' pictures go on the sheet. The captions are below them, in letters that can still be read
// where the sheet is shown 900 pixels wide, and wrap.
struct SheetLayout {
    Size size;
    std::vector<Rect> pictures;
    std::vector<Rect> captions;
    double captionSize = 0;
};
SheetLayout layOut(const Sheet& sheet);

Picture pictureOfSheet(Sheet sheet);

// A PNG with `scale` device pixels for each logical pixel. Absent when it was written.
std::optional<PaintError> writePicture(const std::string& path, const Picture& picture, double scale);

} // namespace kestrune::desk
