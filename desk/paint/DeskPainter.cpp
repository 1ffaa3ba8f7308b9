#include "desk/paint/DeskPainter.h"

#include "desk/paint/BandPainter.h"
#include "desk/paint/Canvas.h"
#include "desk/paint/DisplayPainter.h"
#include "desk/paint/DockPainter.h"
#include "desk/paint/HeaderPainter.h"
#include "desk/paint/MenuBarLayout.h"
#include "desk/paint/MenuBarPainter.h"
#include "desk/paint/PointerPainter.h"
#include "desk/paint/Shapes.h"
#include "desk/paint/StatusBarPainter.h"

#include <cmath>
#include <utility>

namespace kestrune::desk {
namespace {

void paintScreens(const Canvas& canvas, TextMeasure& measure, ImageStore& images, const DeskLayout& layout,
                  const DeskPicture& picture) {
    for (std::size_t index = 0; index < picture.displays.size(); ++index) {
        const DisplayPicture& display = picture.displays[index];
        const DisplayPlace* const place = layout.place(index);
        if (!place) {
            continue;
        }
        paintMenuBar(canvas, images, *place, menuBarLayout(measure, *place, layout.scale(), picture), picture,
                     index);
        if (display.bandTop && picture.guard == GuardState::on) {
            paintBand(canvas, *place, *display.bandTop);
        } else if (display.bandTop) {
            paintIdleBand(canvas, *place, *display.bandTop);
        }
        if (picture.dockDisplay == index) {
            paintDock(canvas, dockPlace(*place, layout.scale(), picture.miniaturized.size()),
                      picture.miniaturized);
        }
        paintCaption(canvas, captionPlace(canvas, *place, layout.scale(), display), display);
    }
}

void paintMarks(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    if (picture.dockMoveMark && picture.dockMoveMark->from != picture.dockMoveMark->to) {
        const DisplayPlace* const from = layout.place(picture.dockMoveMark->from);
        const DisplayPlace* const to = layout.place(picture.dockMoveMark->to);
        if (from && to) {
            const std::size_t tiles = picture.miniaturized.size();
            paintDockTrail(canvas, dockPlace(*from, layout.scale(), tiles),
                           dockPlace(*to, layout.scale(), tiles), picture.dockMoveMark->age);
        }
    }
    for (std::size_t index = 0; picture.heldMark && index < picture.displays.size(); ++index) {
        const DisplayPlace* const place = layout.place(index);
        if (place && place->bounds.contains(picture.heldMark->location)) {
            paintHeldMark(canvas, *place, layout.toWindow(picture.heldMark->location), picture.heldMark->age);
            return;
        }
    }
}

void paintNoDisplay(const Canvas& canvas, const DeskLayout& layout) {
    const Rect content = layout.content();
    const Point center{content.minX() + content.width() / 2, content.minY() + content.height() / 2};
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

void paintPointerAt(cairo_t* context, Point hotSpot, Size window) {
    // A pointer far outside the window, or nowhere, cannot be seen and would exceed Cairo's fixed-point
    // range.
    if (std::abs(hotSpot.x) <= 2 * window.width && std::abs(hotSpot.y) <= 2 * window.height) {
        paintPointer(context, hotSpot);
    }
}

} // namespace

DeskPicture withoutWhatMoves(DeskPicture picture) {
    const DeskPicture nothing;
    picture.pointer = nothing.pointer;
    picture.whatHappened = nothing.whatHappened;
    picture.occurrence = nothing.occurrence;
    picture.events = nothing.events;
    picture.held = nothing.held;
    picture.dockMoves = nothing.dockMoves;
    picture.heldMark = nothing.heldMark;
    picture.dockMoveMark = nothing.dockMoveMark;
    if (picture.menu) {
        picture.menu->rows.clear(); // What it hangs from is highlighted in the menu bar.
    }
    picture.toolTip = nothing.toolTip;
    picture.permissionDialog = nothing.permissionDialog;
    picture.mail = nothing.mail;
    picture.settingsPane = nothing.settingsPane;
    picture.windows.clear();
    picture.pressed = nothing.pressed;
    return picture;
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
    const Canvas canvas{context, text, paletteFor(picture.dark)};
    paintStatus(canvas, layout, picture);
    if (!layout.isEmpty()) {
        paintMarks(canvas, layout, picture);
    }
    systemParts_.paint(canvas, measure_, images_, layout, picture, window);
    if (!layout.isEmpty()) {
        paintPointerAt(context, layout.toWindow(picture.pointer), window);
    }
}

void DeskPainter::paintStill(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout,
                             Size window) {
    paintBackdrop(context, picture, layout, window);
    TextPainter text{context};
    const Canvas canvas{context, text, paletteFor(picture.dark)};
    paintHeader(canvas, layout, picture);
    paintKeys(canvas, layout, picture);
    if (layout.isEmpty()) {
        paintNoDisplay(canvas, layout);
    } else {
        paintScreens(canvas, measure_, images_, layout, picture);
    }
}

void DeskPainter::paintBackdrop(cairo_t* context, const DeskPicture& picture, const DeskLayout& layout,
                                Size window) {
    Backdrop backdrop{{}, {}, layout.content(), picture.dark};
    for (const DisplayPicture& display : picture.displays) {
        backdrop.bounds.push_back(display.bounds);
        backdrop.wallpapers.push_back(display.wallpaper);
    }
    const Palette& palette = paletteFor(picture.dark);
    backdrop_.paint(context, window, std::move(backdrop), [&](cairo_t* layer) {
        cairo_rectangle(layer, 0, 0, window.width, window.height);
        fillWithVerticalGradient(layer, 0, window.height, {palette.windowTop, palette.windowBottom});
        for (std::size_t index = 0; index < picture.displays.size(); ++index) {
            if (const DisplayPlace* const place = layout.place(index)) {
                paintHousingShadow(layer, palette, *place);
            }
        }
        for (std::size_t index = 0; index < picture.displays.size(); ++index) {
            if (const DisplayPlace* const place = layout.place(index)) {
                paintHousing(layer, palette, *place, picture.displays[index].wallpaper);
            }
        }
    });
}

} // namespace kestrune::desk
