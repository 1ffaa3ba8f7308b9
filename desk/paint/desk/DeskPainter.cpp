#include "desk/paint/desk/DeskPainter.h"

#include "desk/paint/desk/BandPainter.h"
#include "desk/paint/desk/HeaderPainter.h"
#include "desk/paint/desk/StatusBarPainter.h"
#include "desk/paint/mac/DockPainter.h"
#include "desk/paint/mac/PointerPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

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

// What the desk itself adds to the displays.
void paintBandsAndCaptions(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    const SavedState saved{canvas.context};
    clipToStage(canvas.context, layout);
    forEachPlace(layout, picture, [&](const DisplayPlace& place, std::size_t index) {
        const DisplayPicture& display = picture.displays[index];
        if (display.bandTop) {
            paintBand(canvas, place, *display.bandTop, picture.guard == GuardState::on);
        }
        if (const auto caption = captionPlace(canvas.text, place, display, layout.stage())) {
            paintCaption(canvas, *caption, display);
        }
    });
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
    {
        const SavedState saved{canvas.context};
        constexpr double Dashes[] = {6, 6};
        cairo_set_dash(canvas.context, Dashes, 2, 0);
        strokeRoundedRectangle(canvas.context, {center.x - 180, center.y - 112, 360, 224}, 12, 1.5,
                               canvas.palette.secondaryText.withAlpha(0.45));
    }
    canvas.text.paint("No display connected", center,
                      {.size = 17,
                       .weight = FontWeight::medium,
                       .color = canvas.palette.secondaryText,
                       .alignment = TextAlignment::center});
}

} // namespace

DeskPicture withoutWhatMoves(DeskPicture picture) {
    DeskPicture result;
    result.displays = std::move(picture.displays);
    result.shown = picture.shown;
    result.guard = picture.guard;
    result.keys = std::move(picture.keys);
    result.story = std::move(picture.story);
    result.dark = picture.dark;
    return result;
}

void DeskPainter::paint(cairo_t* context, const DeskPicture& picture, Size window) {
    const auto isPaintable = [](double length) { return length > 0 && length <= LongestSide; };
    if (!isPaintable(window.width) || !isPaintable(window.height)) {
        return;
    }
    const SavedState saved{context};
    const DeskLayout layout = DeskLayout::of(picture, window);
    still_.paint(context, window, withoutWhatMoves(picture),
                 [&](cairo_t* layer) { paintStill(layer, picture, layout, window); });

    TextPainter text{context};
    const Canvas canvas{context, text, images_, paletteFor(picture.dark)};
    paintStatus(canvas, layout, picture);
    // So small, nothing on a display could be seen, and neither Cairo nor FreeType take the transformation.
    constexpr double SmallestScale = 1.0 / 64;
    if (!layout.isEmpty() && layout.scale() >= SmallestScale) {
        paintStage(canvas, picture, layout);
    }
}

void DeskPainter::paintStage(const Canvas& canvas, const DeskPicture& picture, const DeskLayout& layout) {
    const SavedState saved{canvas.context};
    clipToStage(canvas.context, layout);
    stack_.paint(canvas, layout, picture);
    paintMarks(canvas, layout, picture);
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
    paintHousings(context, picture, layout);
    paintHeader(canvas, layout, picture);
    paintKeys(canvas, layout, picture);
    if (layout.isEmpty()) {
        paintNoDisplay(canvas, layout);
    } else {
        paintBandsAndCaptions(canvas, layout, picture);
    }
}

void DeskPainter::paintHousings(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout) {
    housings_.resize(picture.displays.size());
    const SavedState saved{context};
    clipToStage(context, layout);
    forEachPlace(layout, picture, [&](const DisplayPlace& place, std::size_t index) {
        housings_[index].paintShadow(context, place, picture.dark);
    });
    forEachPlace(layout, picture, [&](const DisplayPlace& place, std::size_t index) {
        housings_[index].paint(context, place, picture.displays[index].wallpaper, picture.dark);
    });
}

} // namespace kestrune::desk
