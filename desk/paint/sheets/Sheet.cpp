#include "desk/paint/sheets/Sheet.h"

#include "desk/paint/desk/DeskPainter.h"
#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/mac/Palette.h"
#include "desk/paint/mac/WindowLayout.h"
#include "desk/paint/mac/WindowPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrune::desk {
namespace {

constexpr double PageMargin = 40;
constexpr double TitleHeight = 56;
constexpr double CaptionHeight = 34;
constexpr double Gap = 20;
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
    const WindowLayout layout = windowLayout(window);
    paintPanel(canvas, layout.frame, windowPanelStyle(canvas.palette, window));
    paintWindow(canvas, layout, window);
}

Size sizeOnSheet(const Sheet& sheet, const SheetCell& cell) {
    return {std::round(cell.picture.size.width * sheet.scale),
            std::round(cell.picture.size.height * sheet.scale)};
}

// Painted by itself, as painters keep parts in the scale that they know.
void paintSmall(cairo_t* context, const Rect& area, const Picture& picture, double scale) {
    const auto surface = Surface::create(picture.size, scale);
    if (!surface) {
        return;
    }
    picture.paint(surface->context());
    const SavedState saved{context};
    addRoundedRectangle(context, area, CornerRadius);
    cairo_clip(context);
    cairo_translate(context, area.minX(), area.minY());
    cairo_scale(context, scale, scale);
    cairo_set_source_surface(context, cairo_get_target(surface->context()), 0, 0);
    cairo_paint(context);
}

void paintSheet(cairo_t* context, const Sheet& sheet) {
    const SheetLayout layout = layOut(sheet);
    const Palette& page = paletteFor(sheet.dark);
    cairo_rectangle(context, 0, 0, layout.size.width, layout.size.height);
    fillWithVerticalGradient(context, 0, layout.size.height, {page.windowTop, page.windowBottom});
    TextPainter text{context};
    text.paint(sheet.title, {PageMargin, PageMargin + TitleHeight / 2 - 8},
               {.size = 24, .weight = FontWeight::semibold, .color = page.primaryText});
    TextStyle style = CaptionStyle;
    style.color = page.secondaryText;
    style.alignment = TextAlignment::center;
    for (std::size_t index = 0; index < sheet.cells.size(); ++index) {
        paintSmall(context, layout.pictures[index], sheet.cells[index].picture, sheet.scale);
        const Rect& caption = layout.captions[index];
        style.maximumWidth = caption.width();
        text.paint(sheet.cells[index].caption, centerOf(caption), style);
    }
}

} // namespace

Picture pictureOfDesk(DeskPicture desk, Size window) {
    return {window, [shown = std::move(desk), window](cairo_t* context) {
                DeskPainter().paint(context, shown, window);
            }};
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
    double top = PageMargin + TitleHeight;
    for (std::size_t first = 0; first < count; first += columns) {
        double bottom = top;
        const std::size_t end = std::min(count, first + columns);
        for (std::size_t index = first; index < end; ++index) {
            const Size size = sizeOnSheet(sheet, sheet.cells[index]);
            const double left = PageMargin + static_cast<double>(index - first) * (width + Gap);
            layout.pictures.emplace_back(left + std::round((width - size.width) / 2), top, size.width,
                                         size.height);
            layout.captions.emplace_back(left, top + size.height, width, CaptionHeight);
            bottom = std::max(bottom, layout.captions.back().maxY());
        }
        top = bottom + Gap;
    }
    layout.size = {2 * PageMargin + static_cast<double>(columns) * (width + Gap) - Gap,
                   top - Gap + PageMargin};
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
