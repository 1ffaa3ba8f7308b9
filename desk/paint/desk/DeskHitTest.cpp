#include "desk/paint/desk/DeskHitTest.h"

#include "desk/paint/desk/DeskStack.h"
#include "desk/paint/mac/DockPainter.h"
#include "desk/paint/mac/MenuBarLayout.h"
#include "desk/paint/mac/MenuLayout.h"
#include "desk/paint/mac/ToolTipPainter.h"
#include "desk/paint/mac/WindowLayout.h"
#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

std::optional<DeskTarget> targetInMenu(const MenuLayout& menu, Point place) {
    if (!menu.panel.contains(place)) {
        return std::nullopt;
    }
    for (std::size_t row = 0; row < menu.rows.size(); ++row) {
        if (menu.rows[row].contains(place)) {
            return DeskTarget::menuRow(row);
        }
    }
    return DeskTarget::menuPanel();
}

// Small controls take presses close beside them, too.
bool isCloseTo(const Rect& control, Point place) {
    constexpr double Reach = 5;
    return enlargedBy(control, Reach).contains(place);
}

std::optional<DeskTarget> targetInWindow(const WindowLayout& layout, const WindowPicture& shown,
                                         Point place) {
    if (!layout.frame.contains(place)) {
        return std::nullopt;
    }
    if (shown.isTitled() && shown.isClosable && isCloseTo(layout.closeButton, place)) {
        return DeskTarget::closeButton(shown.number);
    }
    if (shown.isTitled() && shown.isMiniaturizable && isCloseTo(layout.minimizeButton, place)) {
        return DeskTarget::minimizeButton(shown.number);
    }
    if (layout.titleBar.contains(place)) {
        return DeskTarget::titleBar(shown.number);
    }
    for (std::size_t element = shown.scene.elements.size(); element-- > 0;) {
        if (controlArea(layout, shown, element).contains(place)) {
            return DeskTarget::control(shown.number, element);
        }
    }
    return DeskTarget::ofWindow(shown.number);
}

std::optional<DeskTarget> targetInMenuBar(const MenuBarLayout& bar, std::size_t display, Point place) {
    for (std::size_t item = 0; item < bar.statusItems.size(); ++item) {
        if (bar.statusItems[item].slot.contains(place)) {
            return DeskTarget::statusItem(display, item);
        }
    }
    for (std::size_t title = 0; title < bar.openableTitles; ++title) {
        if (bar.titles[title].contains(place)) {
            return DeskTarget::mainMenuTitle(display, title);
        }
    }
    return std::nullopt;
}

// Where the tiles of the minimised windows are; none without a Dock.
std::vector<Rect> dockTiles(const DeskPicture& picture) {
    return picture.dockDisplay && *picture.dockDisplay < picture.displays.size()
               ? dockPlace(picture.displays[*picture.dockDisplay].bounds, picture).tiles
               : std::vector<Rect>();
}

std::optional<DeskTarget> targetInDock(const DeskPicture& picture, Point place) {
    const std::vector<Rect> tiles = dockTiles(picture);
    for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
        if (tiles[tile].contains(place)) {
            return DeskTarget::dockTile(picture.miniaturized[tile].number);
        }
    }
    return std::nullopt;
}

const WindowPicture* windowWith(std::size_t number, const std::vector<WindowPicture>& windows) {
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [number](const WindowPicture& shown) { return shown.number == number; });
    return found != windows.end() ? &*found : nullptr;
}

// A null rectangle for a part that the window does not have, or that lies around others.
Rect areaInWindow(const WindowPicture& shown, const DeskTarget& target) {
    const WindowLayout layout = windowLayout(shown);
    switch (target.kind) {
    case DeskTarget::Kind::closeButton:
        return shown.isTitled() && shown.isClosable ? layout.closeButton : Rect::null();
    case DeskTarget::Kind::minimizeButton:
        return shown.isTitled() && shown.isMiniaturizable ? layout.minimizeButton : Rect::null();
    case DeskTarget::Kind::titleBar:
        return shown.isTitled() ? layout.titleBar : Rect::null();
    case DeskTarget::Kind::control:
        return controlArea(layout, shown, target.index);
    default:
        return Rect::null();
    }
}

Rect areaOfTile(const DeskPicture& picture, std::size_t window) {
    const std::vector<Rect> tiles = dockTiles(picture);
    for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
        if (picture.miniaturized[tile].number == window) {
            return tiles[tile];
        }
    }
    return Rect::null();
}

// Each kind by the layout that it belongs to; a null rectangle for what has no place.
Rect areaOfTarget(TextMeasure& measure, const DeskPicture& picture, const DeskTarget& target) {
    const auto slotOf = [&](const MenuAnchor& anchor) {
        return target.display < picture.displays.size()
                   ? anchorSlot(menuBarLayout(measure, picture.displays[target.display].bounds, picture),
                                anchor)
                   : Rect::null();
    };
    switch (target.kind) {
    case DeskTarget::Kind::statusItem:
        return slotOf(StatusItemAnchor{target.index});
    case DeskTarget::Kind::mainMenuTitle:
        return slotOf(MainMenuTitleAnchor{target.index});
    case DeskTarget::Kind::menuRow: {
        const auto menu = menuLayout(measure, picture);
        return menu && target.index < menu->rows.size() ? menu->rows[target.index] : Rect::null();
    }
    case DeskTarget::Kind::dockTile:
        return areaOfTile(picture, target.window);
    default: {
        const WindowPicture* const shown = windowWith(target.window, picture.windows);
        return shown != nullptr ? areaInWindow(*shown, target) : Rect::null();
    }
    }
}

// What of a part is at a place. Something may be there that nothing can be done with.
struct Hit {
    std::optional<DeskTarget> target;
};

std::optional<Hit> asHit(std::optional<DeskTarget> target) {
    return target ? std::optional(Hit{target}) : std::nullopt;
}

std::optional<Hit> hitOf(const StackedPart& part, TextMeasure& measure, const DeskPicture& picture,
                         Point place) {
    switch (part.kind) {
    case PartKind::menu: {
        const auto menu = menuLayout(measure, picture);
        return menu ? asHit(targetInMenu(*menu, place)) : std::nullopt;
    }
    case PartKind::toolTip:
        return std::nullopt;
    case PartKind::menuBar: {
        const Rect& display = picture.displays[part.display].bounds;
        // Only a bar under the place is worth measuring its texts.
        return menuBarArea(display).contains(place)
                   ? std::optional(
                         Hit{targetInMenuBar(menuBarLayout(measure, display, picture), part.display, place)})
                   : std::nullopt;
    }
    case PartKind::dock:
        return dockPlace(picture.displays[part.display].bounds, picture).panel.contains(place)
                   ? std::optional(Hit{targetInDock(picture, place)})
                   : std::nullopt;
    case PartKind::window: {
        const WindowPicture& shown = picture.windows[part.window];
        return asHit(targetInWindow(windowLayout(shown), shown, place));
    }
    }
    return std::nullopt;
}

// A part is only where its display is.
bool isShownAt(const StackedPart& part, const DeskPicture& picture, Point place) {
    return part.kind == PartKind::window ||
           (part.display < picture.displays.size() && picture.displays[part.display].bounds.contains(place));
}

} // namespace

std::optional<DeskTarget> DeskHitTest::targetAt(const DeskPicture& picture, Point place) {
    for (const StackedPart& part : stackOf(picture)) {
        const auto hit =
            isShownAt(part, picture, place) ? hitOf(part, measure_, picture, place) : std::nullopt;
        if (hit) {
            return hit->target;
        }
    }
    return std::nullopt;
}

std::optional<Rect> DeskHitTest::openParts(const DeskPicture& picture) {
    if (const auto menu = menuLayout(measure_, picture)) {
        return menu->panel;
    }
    if (const auto toolTip = toolTipArea(measure_, picture)) {
        return toolTip;
    }
    std::optional<Rect> all;
    for (const WindowPicture& window : picture.windows) {
        all = all ? unionOf(*all, window.frame) : window.frame;
    }
    return all;
}

std::optional<Rect> DeskHitTest::areaOf(const DeskPicture& picture, const DeskTarget& target) {
    const Rect area = areaOfTarget(measure_, picture, target);
    return area.isNull() ? std::nullopt : std::optional(area);
}

} // namespace kestrune::desk
