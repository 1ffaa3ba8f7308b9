#include "desk/paint/sheets/ContactSheet.h"

#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/mac/WindowLayout.h"
#include "desk/paint/mac/WindowPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace kestrune::desk {
namespace {

constexpr double PageMargin = 40;
constexpr double TitleHeight = 56;
constexpr double CaptionHeight = 30;
constexpr double CellGap = 20;
constexpr double Surroundings = 40; // between a window and the edge of what is behind it

void paintBehind(cairo_t* context, const Rect& area, double radius, bool dark) {
    addRoundedRectangle(context, area, radius);
    const Color top = dark ? rgb(0x2A3446) : rgb(0xD3DDE7);
    const Color bottom = dark ? rgb(0x151B27) : rgb(0xAFC0D0);
    fillWithVerticalGradient(context, area.minY(), area.maxY(), {top, bottom});
}

void paintAlone(cairo_t* context, Point topLeft, const WindowPicture& shown, bool dark) {
    const SavedState saved{context};
    cairo_translate(context, topLeft.x - shown.frame.minX(), topLeft.y - shown.frame.minY());
    TextPainter text{context};
    ImageStore images;
    const Canvas canvas{context, text, images, paletteFor(dark)};
    const WindowLayout layout = windowLayout(shown);
    paintPanel(canvas, layout.frame, windowPanelStyle(canvas.palette, shown));
    paintWindow(canvas, layout, shown);
}

std::optional<PaintError> writeSurface(const std::string& path, Size size, double scale,
                                       const std::function<void(cairo_t*)>& paint) {
    const auto surface = Surface::create(size, scale);
    if (!surface) {
        return PaintError{path + ": expected a picture with room for every window in it"};
    }
    paint(surface->context());
    return surface->writePng(path);
}

} // namespace

ContactSheetLayout contactSheetLayout(const ContactSheet& sheet) {
    const std::size_t count = sheet.cells.size();
    const std::size_t columns =
        std::min(std::max<std::size_t>(1, sheet.columns), std::max<std::size_t>(1, count));
    double cellWidth = 0;
    for (const SheetCell& cell : sheet.cells) {
        cellWidth = std::max(cellWidth, cell.window.frame.width() + 2 * Surroundings);
    }
    ContactSheetLayout layout;
    double top = PageMargin + TitleHeight;
    for (std::size_t first = 0; first < count; first += columns) {
        const std::size_t end = std::min(count, first + columns);
        double highest = 0;
        for (std::size_t index = first; index < end; ++index) {
            highest = std::max(highest, sheet.cells[index].window.frame.height());
        }
        const double cellHeight = highest + 2 * Surroundings + CaptionHeight;
        for (std::size_t index = first; index < end; ++index) {
            const double left = PageMargin + static_cast<double>(index - first) * (cellWidth + CellGap);
            const Rect& frame = sheet.cells[index].window.frame;
            layout.cells.emplace_back(left, top, cellWidth, cellHeight);
            layout.windows.emplace_back(left + std::round((cellWidth - frame.width()) / 2),
                                        top + Surroundings + std::round((highest - frame.height()) / 2),
                                        frame.width(), frame.height());
        }
        top += cellHeight + CellGap;
    }
    layout.size = {2 * PageMargin + static_cast<double>(columns) * (cellWidth + CellGap) - CellGap,
                   top - CellGap + PageMargin};
    return layout;
}

void paintContactSheet(cairo_t* context, const ContactSheet& sheet) {
    const ContactSheetLayout layout = contactSheetLayout(sheet);
    const Palette& page = paletteFor(false);
    cairo_rectangle(context, 0, 0, layout.size.width, layout.size.height);
    fillWithVerticalGradient(context, 0, layout.size.height, {page.windowTop, page.windowBottom});
    TextPainter text{context};
    text.paint(sheet.title, {PageMargin, PageMargin + TitleHeight / 2 - 8},
               {.size = 24, .weight = FontWeight::semibold, .color = page.primaryText});
    for (std::size_t index = 0; index < sheet.cells.size(); ++index) {
        const SheetCell& cell = sheet.cells[index];
        const Rect& area = layout.cells[index];
        const SavedState saved{context};
        const Rect behind{area.minX(), area.minY(), area.width(), area.height() - CaptionHeight};
        paintBehind(context, behind, 12, cell.dark);
        addRoundedRectangle(context, behind, 12);
        cairo_clip(context);
        paintAlone(context, layout.windows[index].origin, cell.window, cell.dark);
        cairo_reset_clip(context);
        text.paint(cell.caption, {area.minX() + area.width() / 2, area.maxY() - CaptionHeight / 2},
                   {.size = 13,
                    .weight = FontWeight::medium,
                    .color = page.secondaryText,
                    .alignment = TextAlignment::center,
                    .maximumWidth = area.width()});
    }
}

std::optional<PaintError> writeContactSheet(const std::string& path, const ContactSheet& sheet,
                                            double scale) {
    return writeSurface(path, contactSheetLayout(sheet).size, scale,
                        [&](cairo_t* context) { paintContactSheet(context, sheet); });
}

std::optional<PaintError> writeWindowPicture(const std::string& path, const WindowPicture& window, bool dark,
                                             double scale) {
    const Rect frame{Surroundings, Surroundings, window.frame.width(), window.frame.height()};
    const Rect all = enlargedBy(frame, Surroundings);
    return writeSurface(path, all.size, scale, [&](cairo_t* context) {
        paintBehind(context, all, 0, dark);
        paintAlone(context, frame.origin, window, dark);
    });
}

} // namespace kestrune::desk
