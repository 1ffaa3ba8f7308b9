#include "desk/paint/sheets/PictureSheet.h"

#include "desk/paint/desk/DeskPainter.h"
#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/TextPainter.h"

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

} // namespace

PictureSheet::PictureSheet(std::string title, std::size_t columns, Size window, double scale)
    : title_(std::move(title)), columns_(std::max<std::size_t>(1, columns)), window_(window), scale_(scale) {}

std::optional<PaintError> PictureSheet::add(const std::string& caption, const DeskPicture& picture) {
    auto surface = Surface::create(window_, scale_);
    if (!surface) {
        return PaintError{"the picture's size is out of range"};
    }
    DeskPainter painter;
    painter.paint(surface->context(), picture, window_);
    cells_.push_back({caption, *std::move(surface)});
    return std::nullopt;
}

Size PictureSheet::size() const {
    const Rect last = areaOf(cells_.empty() ? 0 : cells_.size() - 1);
    const Rect right = areaOf(std::min(columns_, std::max<std::size_t>(1, cells_.size())) - 1);
    return {right.maxX() + PageMargin, last.maxY() + CaptionHeight + PageMargin};
}

Rect PictureSheet::areaOf(std::size_t index) const {
    const double width = std::round(window_.width * scale_);
    const double height = std::round(window_.height * scale_);
    const std::size_t row = index / columns_;
    return {PageMargin + static_cast<double>(index % columns_) * (width + Gap),
            PageMargin + TitleHeight + static_cast<double>(row) * (height + CaptionHeight + Gap), width,
            height};
}

void PictureSheet::paintCell(cairo_t* context, std::size_t index) const {
    const Cell& cell = cells_[index];
    const Rect area = areaOf(index);
    {
        const SavedState saved{context};
        addRoundedRectangle(context, area, CornerRadius);
        cairo_clip(context);
        cairo_set_source_surface(context, cairo_get_target(cell.picture.context()), area.minX(), area.minY());
        // The picture's own scale makes it as large as the desk's window.
        cairo_matrix_t matrix;
        cairo_matrix_init_scale(&matrix, 1 / scale_, 1 / scale_);
        cairo_matrix_translate(&matrix, -area.minX(), -area.minY());
        cairo_pattern_set_matrix(cairo_get_source(context), &matrix);
        cairo_paint(context);
    }
    TextPainter text{context};
    text.paint(cell.caption, {area.minX() + area.width() / 2, area.maxY() + CaptionHeight / 2},
               {.size = 13,
                .weight = FontWeight::medium,
                .color = paletteFor(false).secondaryText,
                .alignment = TextAlignment::center,
                .maximumWidth = area.width()});
}

std::optional<PaintError> PictureSheet::write(const std::string& path) const {
    const auto surface = Surface::create(size(), 1);
    if (!surface) {
        return PaintError{path + ": expected a picture with room for every scene in it"};
    }
    const Palette& page = paletteFor(false);
    cairo_rectangle(surface->context(), 0, 0, size().width, size().height);
    fillWithVerticalGradient(surface->context(), 0, size().height, {page.windowTop, page.windowBottom});
    TextPainter text{surface->context()};
    text.paint(title_, {PageMargin, PageMargin + TitleHeight / 2 - 8},
               {.size = 24, .weight = FontWeight::semibold, .color = page.primaryText});
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        paintCell(surface->context(), index);
    }
    return surface->writePng(path);
}

} // namespace kestrune::desk
