#include "desk/paint/desk/DeskPainter.h"

#include "desk/paint/desk/Marks.h"
#include "desk/paint/mac/Dock.h"
#include "desk/paint/mac/PointerPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace kestrune::desk {
namespace {

// Displays beside the stage are not seen.
void clipToStage(cairo_t* context, const DeskLayout& layout) {
    addRoundedRectangle(context, layout.stage(), layout.stageCornerRadius());
    cairo_clip(context);
}

void forEachPlace(const DeskLayout& layout, const DeskPicture& picture,
                  const std::function<void(const DisplayPlace&, std::size_t)>& act) {
    for (std::size_t index = 0; index < picture.displays.size(); ++index) {
        if (const DisplayPlace* const place = layout.place(index)) {
            act(*place, index);
        }
    }
}

void paintMarks(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    if (picture.dockMoveMark && picture.dockMoveMark->from != picture.dockMoveMark->to) {
        const DisplayPlace* const from = layout.place(picture.dockMoveMark->from);
        const DisplayPlace* const to = layout.place(picture.dockMoveMark->to);
        if (from && to) {
            paintDockTrail(canvas.context, from->toWindow(dockPlace(from->bounds, picture).panel),
                           to->toWindow(dockPlace(to->bounds, picture).panel), picture.dockMoveMark->age);
        }
    }
    if (picture.heldMark) {
        if (const DisplayPlace* const place = layout.placeContaining(picture.heldMark->location)) {
            paintHeldMark(canvas, *place, picture.heldMark->location, picture.heldMark->age);
        }
    }
}

void paintNoDisplay(const Canvas& canvas, const DeskLayout& layout) {
    const Point center = centerOf(layout.stage());
    constexpr double Dashes[] = {6, 6};
    const SavedState saved{canvas.context};
    cairo_set_dash(canvas.context, Dashes, 2, 0);
    strokeRoundedRectangle(canvas.context, {center.x - 180, center.y - 112, 360, 224}, 12, 1.5,
                           canvas.palette.secondaryText.withAlpha(0.45));
    canvas.text.paint("No display connected", center,
                      {.size = 17,
                       .weight = FontWeight::medium,
                       .color = canvas.palette.secondaryText,
                       .alignment = TextAlignment::center});
}

// Where the glass is that shows a place: beside it, on the side of it where the stage has more room.
Rect glassBeside(Point place, const Rect& stage) {
    constexpr double Gap = 56;
    const double radius = std::min(110.0, 0.24 * stage.height());
    const Rect room = enlargedBy(stage, -radius - 8);
    const double x = place.x + std::copysign(radius + Gap, centerOf(stage).x - place.x);
    const Point center{std::clamp(x, room.minX(), std::max(room.minX(), room.maxX())),
                       std::clamp(place.y - radius, room.minY(), std::max(room.minY(), room.maxY()))};
    return enlargedBy({center.x, center.y, 0, 0}, radius);
}

} // namespace

DeskPicture withoutWhatMoves(DeskPicture picture) {
    DeskPicture result;
    result.displays = std::move(picture.displays);
    result.shown = picture.shown;
    result.stageOnly = picture.stageOnly;
    result.guard = picture.guard;
    result.keys = std::move(picture.keys);
    result.story = std::move(picture.story);
    result.dark = picture.dark;
    return result;
}

void DeskPainter::paint(cairo_t* context, const DeskPicture& picture, Size window) {
    constexpr double LongestSide = 16384;
    const auto isPaintable = [](double length) { return length > 0 && length <= LongestSide; };
    if (!isPaintable(window.width) || !isPaintable(window.height)) {
        return;
    }
    const SavedState saved{context};
    const DeskLayout layout = DeskLayout::of(picture, window);
    still_.paint(context, {0, 0, window.width, window.height}, withoutWhatMoves(picture),
                 [&](cairo_t* layer) { paintStill(layer, picture, layout, window); });

    TextPainter text{context};
    const Canvas canvas{context, text, images_, paletteFor(picture.dark)};
    if (!picture.stageOnly) {
        chrome_.paintStatus(canvas, layout, picture);
    }
    // So small, nothing on a display could be seen, and neither Cairo nor FreeType take the transformation.
    constexpr double SmallestScale = 1.0 / 64;
    if (layout.isEmpty() || layout.scale() < SmallestScale) {
        return;
    }
    paintStage(canvas, picture, layout, true);
    constexpr double SmallScale = 0.6;
    const DisplayPlace* const place = picture.loupe ? layout.placeContaining(*picture.loupe) : nullptr;
    if (place != nullptr && layout.scale() < SmallScale) {
        // Nothing of what it enlarges is kept: it would take the place of what is kept for the displays.
        DeskPainter().paintThroughGlass(canvas, picture, layout, place->toWindow(*picture.loupe));
    }
}

void DeskPainter::paintThroughGlass(const Canvas& canvas, const DeskPicture& picture,
                                    const DeskLayout& layout, Point place) {
    constexpr double PixelsPerPoint = 3.5;
    const Rect glass = glassBeside(place, layout.stage());
    const auto addGlass = [&](cairo_t* context) { addRoundedRectangle(context, glass, glass.width()); };
    const SavedState whole{canvas.context};
    clipToStage(canvas.context, layout);
    paintSoftShadow(canvas.context, glass, 30, rgb(0x000000, 0.5), addGlass);
    {
        const SavedState saved{canvas.context};
        addGlass(canvas.context);
        cairo_clip(canvas.context);
        setColor(canvas.context, canvas.palette.windowBottom);
        cairo_paint(canvas.context);
        cairo_translate(canvas.context, centerOf(glass).x, centerOf(glass).y + glass.height() / 8);
        cairo_scale(canvas.context, PixelsPerPoint / layout.scale(), PixelsPerPoint / layout.scale());
        cairo_translate(canvas.context, -place.x, -place.y);
        paintHousings(canvas, picture, layout);
        paintStage(canvas, picture, layout, false);
    }
    const Rect ring = enlargedBy(glass, 3);
    strokeRoundedRectangle(canvas.context, ring, ring.width(), 3, rgb(0xFFFFFF));
    strokeRoundedRectangle(canvas.context, enlargedBy(ring, 0.5), ring.width(), 0.5, rgb(0x000000, 0.35));
}

void DeskPainter::paintStage(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout,
                             bool hasMarks) {
    const SavedState saved{canvas.context};
    clipToStage(canvas.context, layout);
    stack_.paint(canvas, layout, picture);
    if (hasMarks) {
        paintMarks(canvas, layout, picture);
    }
    forEachPlace(layout, picture, [&](const DisplayPlace& place, std::size_t) {
        if (doOverlap(pointerExtent(picture.pointer), place.bounds)) {
            const SavedState outside{canvas.context};
            enterDisplay(canvas.context, place);
            paintPointer(canvas.context, picture.pointer);
        }
        paintScreenCorners(canvas.context, canvas.palette, place);
    });
}

void DeskPainter::paintStill(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout,
                             Size window) {
    TextPainter text{context};
    const Canvas canvas{context, text, images_, paletteFor(picture.dark)};
    cairo_rectangle(context, 0, 0, window.width, window.height);
    fillWithVerticalGradient(context, 0, window.height,
                             {canvas.palette.windowTop, canvas.palette.windowBottom});
    paintHousings(canvas, picture, layout);
    chrome_.paintStill(canvas, layout, picture);
    if (layout.isEmpty()) {
        paintNoDisplay(canvas, layout);
    }
}

// With the bands, which stay as long as the displays.
void DeskPainter::paintHousings(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout) {
    housings_.resize(picture.displays.size());
    const SavedState saved{canvas.context};
    clipToStage(canvas.context, layout);
    forEachPlace(layout, picture, [&](const DisplayPlace& place, std::size_t index) {
        housings_[index].paintShadow(canvas.context, place, picture.dark);
    });
    forEachPlace(layout, picture, [&](const DisplayPlace& place, std::size_t index) {
        const DisplayPicture& display = picture.displays[index];
        housings_[index].paint(canvas.context, place, display.wallpaper, picture.dark);
        if (display.bandTop) {
            paintBand(canvas, place, *display.bandTop, picture.guard == GuardState::on);
        }
    });
}

} // namespace kestrune::desk
