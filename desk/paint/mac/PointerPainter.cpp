#include "desk/paint/mac/PointerPainter.h"

#include "desk/paint/toolkit/Color.h"
#include "desk/paint/toolkit/Shapes.h"

#include <array>

namespace kestrune::desk {
namespace {

constexpr std::array<Point, 7> Outline{
    {{0, 0}, {0, 15.6}, {3.7, 12.3}, {6.2, 18.0}, {8.9, 16.8}, {6.4, 11.2}, {11.2, 11.0}}};

void addArrow(cairo_t* context, Point hotSpot) {
    for (const Point& corner : Outline) {
        cairo_line_to(context, hotSpot.x + corner.x, hotSpot.y + corner.y);
    }
    cairo_close_path(context);
}

} // namespace

Rect pointerExtent(Point hotSpot) { return {hotSpot.x - 6, hotSpot.y - 6, 26, 34}; }

void paintPointer(cairo_t* context, Point hotSpot) {
    const SavedState saved{context};
    const Point shadow{hotSpot.x + 0.6, hotSpot.y + 1.8};
    paintSoftShadow(context, {shadow.x, shadow.y, 12, 19}, 4, rgb(0x000000, 0.45),
                    [&](cairo_t* mask) { addArrow(mask, shadow); });
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    addArrow(context, hotSpot);
    setColor(context, rgb(0xFFFFFF));
    cairo_set_line_width(context, 2);
    cairo_stroke_preserve(context);
    setColor(context, rgb(0x000000));
    cairo_fill(context);
}

} // namespace kestrune::desk
