#include "desk/paint/sheets/Sheet.h"

#include "desk/paint/desk/DeskPainter.h"
#include "desk/paint/mac/Palette.h"
#include "desk/paint/mac/PanelPainter.h"
#include "desk/paint/mac/Window.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrune::desk {
namespace {

constexpr double PageMargin = 40;
constexpr double Gap = 20;
constexpr double SmallestLetters = 11; // pixels, on a sheet that is shown 900 pixels wide
constexpr double CornerRadius = 8;
constexpr double Surroundings = 40; // between a window and the edge of what is behind it

void paintWindowAlone(cairo_t* context, const WindowPicture& window, bool dark) {
    const Rect all = enlargedBy(window.frame, Surroundings);
    const SavedState saved{context};
    cairo_translate(context, -all.minX(), -all.minY());
    cairo_rectangle(context, all.minX(), all.minY(), all.width(), all.height());
    const Color top = dark ? rgb(0x2A3446) : rgb(0xD3DDE7);
    const Color bottom = dark ? rgb(0x151B27) : rgb(0xAFC0D0);
    fillWithVerticalGradient(context, all.minY(), all.maxY(), {top, bottom});
    TextPainter text{context};
    ImageStore images;
    const Canvas canvas{context, text, images, paletteFor(dark)};
    paintPanel(canvas, window.frame, windowPanelStyle(canvas.palette, window));
    paintWindow(canvas, window);
}

Size sizeOnSheet(const Sheet& sheet, const SheetCell& cell) {
    return {std::round(cell.picture.size.width * sheet.scale),
            std::round(cell.picture.size.height * sheet.scale)};
}

ui::StyledText styled(const std::string& words, double size, FontWeight weight, TextAlignment alignment) {
    return {.runs = {{words, weight}}, .font = ui::Font::system(size), .alignment = alignment};
}

ui::StyledText titleOf(const Sheet& sheet, double captionSize) {
    return styled(sheet.title, 1.35 * captionSize, FontWeight::semibold, TextAlignment::leading);
}

ui::StyledText captionOf(const SheetCell& cell, double captionSize) {
    return styled(cell.caption, captionSize, FontWeight::medium, TextAlignment::center);
}

// Wrapped into lines of about the same length.
Size captionSize(TextPainter& measure, const ui::StyledText& caption, double width) {
    const double inOneLine = measure.size(caption, std::nullopt).width;
    const double balanced = 1.15 * inOneLine / std::max(1.0, std::ceil(inOneLine / width));
    const double room = std::min(width, balanced);
    return {room, measure.size(caption, room).height};
}

void paintSmall(cairo_t* context, const Rect& area, const Picture& picture, double scale) {
    const SavedState saved{context};
    addRoundedRectangle(context, area, CornerRadius);
    cairo_clip(context);
    cairo_translate(context, area.minX(), area.minY());
    cairo_scale(context, scale, scale);
    picture.paint(context);
}

void paintSheet(cairo_t* context, const Sheet& sheet) {
    const SheetLayout layout = layOut(sheet);
    const Palette& page = paletteFor(sheet.dark);
    cairo_rectangle(context, 0, 0, layout.size.width, layout.size.height);
    fillWithVerticalGradient(context, 0, layout.size.height, {page.windowTop, page.windowBottom});
    TextPainter text{context};
    text.paint(titleOf(sheet, layout.captionSize),
               {PageMargin, PageMargin, layout.size.width - 2 * PageMargin, 0}, page.primaryText);
    for (std::size_t index = 0; index < sheet.cells.size(); ++index) {
        const SheetCell& cell = sheet.cells[index];
        paintSmall(context, layout.pictures[index], cell.picture, sheet.scale);
        text.paint(captionOf(cell, layout.captionSize),
                   movedBy(layout.captions[index], {0, layout.captionSize / 2}), page.secondaryText);
    }
}

} // namespace

Picture pictureOfDesk(DeskPicture desk, Size window) {
    return {window, [shown = std::move(desk), window](cairo_t* context) {
                DeskPainter().paint(context, shown, window);
            }};
}

Picture pictureOfStage(DeskPicture desk, Size window) {
    window.height -= DeskLayout::HeaderHeight + DeskLayout::FooterHeight;
    desk.stageOnly = true;
    return pictureOfDesk(std::move(desk), window);
}

Picture pictureOfWindow(WindowPicture window, bool dark) {
    const Size size = enlargedBy(window.frame, Surroundings).size;
    return {size,
            [shown = std::move(window), dark](cairo_t* context) { paintWindowAlone(context, shown, dark); }};
}

SheetLayout layOut(const Sheet& sheet) {
    const std::size_t count = sheet.cells.size();
    const std::size_t columns =
        std::min(std::max<std::size_t>(1, sheet.columns), std::max<std::size_t>(1, count));
    double width = 0;
    for (const SheetCell& cell : sheet.cells) {
        width = std::max(width, sizeOnSheet(sheet, cell).width);
    }
    SheetLayout layout;
    layout.size.width = 2 * PageMargin + static_cast<double>(columns) * (width + Gap) - Gap;
    layout.captionSize = std::max(13.0, std::round(layout.size.width / 900 * SmallestLetters));
    TextPainter measure;
    double top = PageMargin + measure.size(titleOf(sheet, layout.captionSize), std::nullopt).height + Gap;
    for (std::size_t first = 0; first < count; first += columns) {
        double bottom = top;
        const std::size_t end = std::min(count, first + columns);
        for (std::size_t index = first; index < end; ++index) {
            const SheetCell& cell = sheet.cells[index];
            const Size size = sizeOnSheet(sheet, cell);
            const double left = PageMargin + static_cast<double>(index - first) * (width + Gap);
            layout.pictures.emplace_back(left + std::round((width - size.width) / 2), top, size.width,
                                         size.height);
            const Size caption = captionSize(measure, captionOf(cell, layout.captionSize), width);
            layout.captions.emplace_back(left + (width - caption.width) / 2, top + size.height, caption.width,
                                         caption.height + layout.captionSize);
            bottom = std::max(bottom, layout.captions.back().maxY());
        }
        top = bottom + Gap;
    }
    layout.size.height = top - Gap + PageMargin;
    return layout;
}

Picture pictureOfSheet(Sheet sheet) {
    const Size size = layOut(sheet).size;
    return {size, [shown = std::move(sheet)](cairo_t* context) { paintSheet(context, shown); }};
}

std::optional<PaintError> writePicture(const std::string& path, const Picture& picture, double scale) {
    const auto surface = Surface::create(picture.size, scale);
    if (!surface) {
        return PaintError{path + ": the picture's size is out of range"};
    }
    picture.paint(surface->context());
    return surface->writePng(path);
}

} // namespace kestrune::desk
