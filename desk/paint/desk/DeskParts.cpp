#include "desk/paint/desk/DeskParts.h"

#include "desk/paint/desk/DisplayPainter.h"
#include "desk/paint/mac/Dock.h"
#include "desk/paint/mac/Menu.h"
#include "desk/paint/mac/MenuBar.h"
#include "desk/paint/mac/Window.h"
#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>
#include <utility>

namespace kestrune::desk {
namespace {

using Kind = DeskPart::Kind;

// A sprite has a context of its own to paint text into.
void paintInto(cairo_t* sprite, const Canvas& outside, const std::function<void(const Canvas&)>& paint) {
    TextPainter text{sprite};
    paint(Canvas{sprite, text, outside.images, outside.palette});
}

// What the menu bars show decides on what hangs from them, too.
MacPicture withMenuBarsOnly(const DeskPicture& picture) {
    MacPicture result;
    result.displays = picture.displays;
    result.clock = picture.clock;
    result.statusItems = picture.statusItems;
    result.mainMenuTitles = picture.mainMenuTitles;
    result.otherMenuTitles = picture.otherMenuTitles;
    result.dark = picture.dark;
    return result;
}

DeskPart menuPart(const MenuLayout& menu, const DeskPicture& picture) {
    DeskPart part{.kind = Kind::menu, .display = picture.menu->display, .frame = menu.panel};
    part.panel = menuPanelStyle(paletteFor(picture.dark));
    part.subject = withMenuBarsOnly(picture);
    part.subject.menu = picture.menu;
    part.paint = [menu, &picture](const Canvas& own) { paintMenu(own, menu, *picture.menu); };
    for (std::size_t row = 0; row < menu.rows.size(); ++row) {
        part.presses.push_back({DeskTarget::menuRow(row), menu.rows[row]});
    }
    part.around = DeskTarget::menuPanel();
    return part;
}

DeskPart toolTipPart(const Rect& area, const DeskPicture& picture) {
    DeskPart part{.kind = Kind::toolTip, .display = picture.toolTip->display, .frame = area};
    part.panel = toolTipPanelStyle(paletteFor(picture.dark));
    part.subject = withMenuBarsOnly(picture);
    part.subject.toolTip = picture.toolTip;
    part.paint = [area, &picture](const Canvas& own) { paintToolTip(own, area, picture.toolTip->text); };
    return part;
}

DeskPart menuBarPart(const MenuBarLayout& bar, std::size_t display, const DeskPicture& picture) {
    DeskPart part{.kind = Kind::menuBar, .display = display, .frame = bar.area};
    part.subject = withMenuBarsOnly(picture);
    if (picture.menu) {
        part.subject.menu = MenuPicture{picture.menu->display, picture.menu->anchor, {}};
    }
    part.paint = [bar, display, &picture](const Canvas& own) { paintMenuBar(own, bar, picture, display); };
    for (std::size_t item = 0; item < bar.statusItems.size(); ++item) {
        part.presses.push_back({DeskTarget::statusItem(display, item), bar.statusItems[item].slot});
    }
    for (std::size_t title = 0; title < bar.openableTitles; ++title) {
        part.presses.push_back({DeskTarget::mainMenuTitle(display, title), bar.titles[title]});
    }
    return part;
}

DeskPart dockPart(std::size_t display, const DeskPicture& picture) {
    const DockPlace dock = dockPlace(picture.displays[display].bounds, picture);
    DeskPart part{.kind = Kind::dock, .display = display, .frame = dock.panel};
    part.painted = dockExtent(dock);
    part.subject.displays = picture.displays;
    part.subject.dockDisplay = display;
    part.subject.dockIcon = picture.dockIcon;
    part.subject.miniaturized = picture.miniaturized;
    part.subject.dark = picture.dark;
    part.paint = [dock, &picture](const Canvas& own) { paintDock(own, dock, picture); };
    for (std::size_t tile = 0; tile < dock.tiles.size(); ++tile) {
        part.presses.push_back({DeskTarget::dockTile(picture.miniaturized[tile].number), dock.tiles[tile]});
    }
    return part;
}

DeskPart windowPart(const WindowPicture& shown, const DeskPicture& picture) {
    constexpr double Reach = 5;
    const WindowLayout layout = windowLayout(shown);
    DeskPart part{.kind = Kind::window, .window = shown.number, .frame = layout.frame};
    part.panel = windowPanelStyle(paletteFor(picture.dark), shown);
    part.subject.windows = {shown};
    part.subject.dark = picture.dark;
    part.paint = [&shown](const Canvas& own) { paintWindow(own, shown); };
    if (shown.isTitled() && shown.isClosable) {
        part.presses.push_back({DeskTarget::closeButton(shown.number), layout.closeButton, Reach});
    }
    if (shown.isTitled() && shown.isMiniaturizable) {
        part.presses.push_back({DeskTarget::minimizeButton(shown.number), layout.minimizeButton, Reach});
    }
    if (shown.isTitled()) {
        part.presses.push_back({DeskTarget::titleBar(shown.number), layout.titleBar});
    }
    for (std::size_t element = shown.scene.elements.size(); element-- > 0;) {
        if (const auto frame = controlFrame(shown.scene.elements[element])) {
            part.presses.push_back(
                {DeskTarget::control(shown.number, element), movedBy(*frame, layout.content.origin)});
        }
    }
    part.around = DeskTarget::ofWindow(shown.number);
    return part;
}

// A part is only where its display is, and tool tips are nowhere.
bool isAt(const DeskPart& part, const DeskPicture& picture, Point place) {
    return part.kind != DeskPart::Kind::toolTip && part.frame.contains(place) &&
           (!part.display || picture.displays[*part.display].bounds.contains(place));
}

} // namespace

std::vector<DeskPart> partsOf(const DeskPicture& picture, TextPainter& measure) {
    std::vector<DeskPart> parts;
    if (const auto menu = menuLayout(measure, picture)) {
        parts.push_back(menuPart(*menu, picture));
    }
    if (const auto toolTip = toolTipArea(measure, picture)) {
        parts.push_back(toolTipPart(*toolTip, picture));
    }
    for (std::size_t display = 0; display < picture.displays.size(); ++display) {
        parts.push_back(
            menuBarPart(menuBarLayout(measure, picture.displays[display].bounds, picture), display, picture));
    }
    if (picture.dockDisplay && *picture.dockDisplay < picture.displays.size()) {
        parts.push_back(dockPart(*picture.dockDisplay, picture));
    }
    for (const WindowPicture& window : picture.windows) {
        parts.push_back(windowPart(window, picture));
    }
    return parts;
}

std::optional<DeskTarget> DeskHitTest::targetAt(const DeskPicture& picture, Point place) {
    for (const DeskPart& part : partsOf(picture, measure_)) {
        if (!isAt(part, picture, place)) {
            continue;
        }
        for (const PressArea& press : part.presses) {
            if (enlargedBy(press.area, press.reach).contains(place)) {
                return press.target;
            }
        }
        return part.around;
    }
    return std::nullopt;
}

std::optional<Rect> DeskHitTest::openParts(const DeskPicture& picture) {
    std::optional<Rect> all;
    for (const DeskPart& part : partsOf(picture, measure_)) {
        if (part.kind == DeskPart::Kind::menu || part.kind == DeskPart::Kind::toolTip) {
            return part.frame;
        }
        if (part.kind == DeskPart::Kind::window) {
            all = all ? unionOf(*all, part.frame) : part.frame;
        }
    }
    return all;
}

std::optional<Rect> DeskHitTest::areaOf(const DeskPicture& picture, const DeskTarget& target) {
    for (const DeskPart& part : partsOf(picture, measure_)) {
        for (const PressArea& press : part.presses) {
            if (press.target == target && !press.area.isNull()) {
                return press.area;
            }
        }
    }
    return std::nullopt;
}

void StackPainter::paint(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    std::map<Key, Sprites> painted;
    std::vector<DeskPart> fromBackToFront = partsOf(picture, measure_);
    std::reverse(fromBackToFront.begin(), fromBackToFront.end());
    for (const DeskPart& part : fromBackToFront) {
        for (std::size_t display = 0; display < picture.displays.size(); ++display) {
            const DisplayPlace* const place = layout.place(display);
            if (place && part.display.value_or(display) == display) {
                const Key key{part.kind, part.window, display};
                Sprites& sprites = painted[key] = std::move(sprites_[key]);
                paintOn(*place, canvas, part, sprites);
            }
        }
    }
    sprites_ = std::move(painted); // Nothing is kept of what is no longer there.
}

void StackPainter::paintOn(const DisplayPlace& place, const Canvas& canvas, const DeskPart& part,
                           Sprites& sprites) {
    const Rect extent = part.panel ? panelExtent(part.frame, *part.panel) : part.painted;
    if (!doOverlap(extent, place.bounds)) {
        return;
    }
    const SavedState saved{canvas.context};
    enterDisplay(canvas.context, place);
    if (part.panel) {
        sprites.panel.paint(canvas.context, overlapOf(extent, place.bounds),
                            {part.frame, *part.panel, part.subject.dark}, [&](cairo_t* sprite) {
                                paintInto(sprite, canvas, [&](const Canvas& own) {
                                    paintPanel(own, part.frame, *part.panel);
                                });
                            });
    }
    if (doOverlap(part.painted, place.bounds)) {
        sprites.content.paint(canvas.context, overlapOf(part.painted, place.bounds), part.subject,
                              [&](cairo_t* sprite) { paintInto(sprite, canvas, part.paint); });
    }
}

} // namespace kestrune::desk
