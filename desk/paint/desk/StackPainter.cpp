#include "desk/paint/desk/StackPainter.h"

#include "desk/paint/desk/DisplayPainter.h"
#include "desk/paint/mac/DockPainter.h"
#include "desk/paint/mac/MenuBarPainter.h"
#include "desk/paint/mac/MenuPainter.h"
#include "desk/paint/mac/ToolTipPainter.h"
#include "desk/paint/mac/WindowPainter.h"
#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>
#include <utility>

namespace kestrune::desk {
namespace {

// A sprite has a context of its own to paint text into.
void paintInto(cairo_t* sprite, const Canvas& outside, const std::function<void(const Canvas&)>& paint) {
    TextPainter text{sprite};
    paint(Canvas{sprite, text, outside.images, outside.palette});
}

Rect sharedBy(const Rect& first, const Rect& second) {
    const double left = std::max(first.minX(), second.minX());
    const double top = std::max(first.minY(), second.minY());
    return {left, top, std::min(first.maxX(), second.maxX()) - left,
            std::min(first.maxY(), second.maxY()) - top};
}

// What the menu bars show decides on what hangs from them, too.
DeskPicture withMenuBarsOnly(const DeskPicture& picture) {
    DeskPicture result;
    result.displays = picture.displays;
    result.clock = picture.clock;
    result.statusItems = picture.statusItems;
    result.mainMenuTitles = picture.mainMenuTitles;
    result.otherMenuTitles = picture.otherMenuTitles;
    result.dark = picture.dark;
    return result;
}

} // namespace

void StackPainter::paint(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    std::map<Key, Sprites> painted;
    std::vector<StackedPart> fromBackToFront = stackOf(picture);
    std::reverse(fromBackToFront.begin(), fromBackToFront.end());
    for (const StackedPart& part : fromBackToFront) {
        const std::optional<Look> look = lookOf(part, picture, canvas.palette);
        const bool isWindow = part.kind == PartKind::window;
        for (std::size_t display = 0; look && display < picture.displays.size(); ++display) {
            const DisplayPlace* const place = layout.place(display);
            if (place && (isWindow || display == part.display)) {
                const Key key{part.kind, isWindow ? picture.windows[part.window].number : 0, display};
                Sprites& sprites = painted[key] = std::move(sprites_[key]);
                paintOn(*place, canvas, *look, sprites);
            }
        }
    }
    sprites_ = std::move(painted); // Nothing is kept of what is no longer there.
}

void StackPainter::paintOn(const DisplayPlace& place, const Canvas& canvas, const Look& look,
                           Sprites& sprites) {
    const Rect extent = look.panel ? panelExtent(look.frame, *look.panel) : look.frame;
    if (!doOverlap(extent, place.bounds)) {
        return;
    }
    const SavedState saved{canvas.context};
    enterDisplay(canvas.context, place);
    if (look.panel) {
        sprites.panel.paint(canvas.context, sharedBy(extent, place.bounds),
                            {look.frame, *look.panel, look.subject.dark}, [&](cairo_t* sprite) {
                                paintInto(sprite, canvas, [&](const Canvas& own) {
                                    paintPanel(own, look.frame, *look.panel);
                                });
                            });
    }
    if (doOverlap(look.frame, place.bounds)) {
        sprites.content.paint(canvas.context, sharedBy(look.frame, place.bounds), look.subject,
                              [&](cairo_t* sprite) { paintInto(sprite, canvas, look.paintContent); });
    }
}

std::optional<StackPainter::Look> StackPainter::lookOf(const StackedPart& part, const DeskPicture& picture,
                                                       const Palette& palette) {
    switch (part.kind) {
    case PartKind::menu:
        return lookOfMenu(picture, palette);
    case PartKind::toolTip:
        return lookOfToolTip(picture, palette);
    case PartKind::menuBar:
        return lookOfMenuBar(part.display, picture);
    case PartKind::dock:
        return part.display < picture.displays.size() ? std::optional(lookOfDock(picture, part.display))
                                                      : std::nullopt;
    case PartKind::window:
        return lookOfWindow(picture.windows[part.window], picture, palette);
    }
    return std::nullopt;
}

StackPainter::Look StackPainter::lookOfMenuBar(std::size_t display, const DeskPicture& picture) {
    DeskPicture subject = withMenuBarsOnly(picture);
    if (picture.menu) {
        subject.menu = MenuPicture{picture.menu->display, picture.menu->anchor, {}};
    }
    const MenuBarLayout bar = menuBarLayout(measure_, picture.displays[display].bounds, picture);
    return {bar.area, std::nullopt, std::move(subject),
            [=, &picture](const Canvas& own) { paintMenuBar(own, bar, picture, display); }};
}

StackPainter::Look StackPainter::lookOfDock(const DeskPicture& picture, std::size_t display) {
    DeskPicture subject;
    subject.displays = picture.displays;
    subject.dockDisplay = display;
    subject.dockIcon = picture.dockIcon;
    subject.miniaturized = picture.miniaturized;
    subject.dark = picture.dark;
    const DockPlace dock = dockPlace(picture.displays[display].bounds, picture);
    return {dockExtent(dock), std::nullopt, std::move(subject),
            [=, &picture](const Canvas& own) { paintDock(own, dock, picture); }};
}

StackPainter::Look StackPainter::lookOfWindow(const WindowPicture& shown, const DeskPicture& picture,
                                              const Palette& palette) {
    DeskPicture subject;
    subject.windows = {shown};
    subject.dark = picture.dark;
    return {shown.frame, windowPanelStyle(palette, shown), std::move(subject),
            [&](const Canvas& own) { paintWindow(own, windowLayout(shown), shown); }};
}

std::optional<StackPainter::Look> StackPainter::lookOfMenu(const DeskPicture& picture,
                                                           const Palette& palette) {
    const auto menu = menuLayout(measure_, picture);
    if (!menu) {
        return std::nullopt;
    }
    DeskPicture subject = withMenuBarsOnly(picture);
    subject.menu = picture.menu;
    return Look{menu->panel, menuPanelStyle(palette), std::move(subject),
                [menu = *menu, &picture](const Canvas& own) { paintMenu(own, menu, *picture.menu); }};
}

std::optional<StackPainter::Look> StackPainter::lookOfToolTip(const DeskPicture& picture,
                                                              const Palette& palette) {
    const auto area = toolTipArea(measure_, picture);
    if (!area) {
        return std::nullopt;
    }
    DeskPicture subject = withMenuBarsOnly(picture);
    subject.toolTip = picture.toolTip;
    return Look{
        *area, toolTipPanelStyle(palette), std::move(subject),
        [area = *area, &picture](const Canvas& own) { paintToolTip(own, area, picture.toolTip->text); }};
}

} // namespace kestrune::desk
