#include "desk/paint/desk/DeskHitTest.h"

#include "desk/paint/desk/DeskStack.h"
#include "desk/paint/mac/AlertLayout.h"
#include "desk/paint/mac/DockPainter.h"
#include "desk/paint/mac/MailLayout.h"
#include "desk/paint/mac/MenuBarLayout.h"
#include "desk/paint/mac/MenuLayout.h"
#include "desk/paint/mac/SettingsPaneLayout.h"
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
            return MenuRowTarget{row};
        }
    }
    return MenuPanelTarget{};
}

std::optional<DeskTarget> targetInAlert(const AlertLayout& alert, Point place) {
    if (!alert.frame.contains(place)) {
        return std::nullopt;
    }
    if (alert.openSystemSettings.contains(place)) {
        return DialogButtonTarget{DialogButton::openSystemSettings};
    }
    if (alert.deny.contains(place)) {
        return DialogButtonTarget{DialogButton::deny};
    }
    return DialogTarget{};
}

// Small controls take presses close beside them, too.
bool isCloseTo(const Rect& control, Point place) {
    constexpr double Reach = 5;
    return enlargedBy(control, Reach).contains(place);
}

std::optional<DeskTarget> targetInPane(const SettingsPaneLayout& layout, const SettingsPanePicture& pane,
                                       Point place) {
    if (!layout.frame.contains(place)) {
        return std::nullopt;
    }
    if (isCloseTo(layout.closeButton, place)) {
        return PaneCloseTarget{};
    }
    if (canRemove(pane) && layout.removeButton.contains(place)) {
        return PaneRemoveTarget{};
    }
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        if (isCloseTo(layout.rows[row].toggle, place)) {
            return PaneSwitchTarget{row};
        }
        if (layout.rows[row].area.contains(place)) {
            return PaneRowTarget{row};
        }
    }
    return PaneTarget{};
}

std::optional<DeskTarget> targetInMail(const MailLayout& mail, Point place) {
    if (!mail.frame.contains(place)) {
        return std::nullopt;
    }
    return isCloseTo(mail.closeButton, place) ? DeskTarget{MailCloseTarget{}} : DeskTarget{MailTarget{}};
}

std::optional<DeskTarget> targetInWindow(const WindowLayout& layout, const WindowPicture& shown,
                                         Point place) {
    if (!layout.frame.contains(place)) {
        return std::nullopt;
    }
    if (shown.isTitled() && shown.isClosable && isCloseTo(layout.closeButton, place)) {
        return WindowCloseTarget{shown.number};
    }
    if (shown.isTitled() && shown.isMiniaturizable && isCloseTo(layout.minimizeButton, place)) {
        return WindowMinimizeTarget{shown.number};
    }
    if (layout.titleBar.contains(place)) {
        return WindowTitleTarget{shown.number};
    }
    for (std::size_t element = shown.scene.elements.size(); element-- > 0;) {
        if (controlArea(layout, shown, element).contains(place)) {
            return WindowControlTarget{shown.number, element};
        }
    }
    return WindowTarget{shown.number};
}

std::optional<DeskTarget> targetInMenuBar(const MenuBarLayout& bar, std::size_t display, Point place) {
    for (std::size_t item = 0; item < bar.statusItems.size(); ++item) {
        if (bar.statusItems[item].slot.contains(place)) {
            return StatusItemTarget{display, item};
        }
    }
    for (std::size_t title = 0; title < bar.openableTitles; ++title) {
        if (bar.titles[title].contains(place)) {
            return MainMenuTitleTarget{display, title};
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
            return DockTileTarget{picture.miniaturized[tile].number};
        }
    }
    return std::nullopt;
}

template <typename Place>
const Place* at(const std::vector<Place>& places, std::size_t index) {
    return index < places.size() ? &places[index] : nullptr;
}

// Finds the area of a part, each kind by the layout that it belongs to.
struct AreaOfTarget {
    TextMeasure& measure;
    const DeskPicture& picture;

    std::optional<Rect> operator()(const StatusItemTarget& target) const {
        return slotOf(target.display, StatusItemAnchor{target.item});
    }

    std::optional<Rect> operator()(const MainMenuTitleTarget& target) const {
        return slotOf(target.display, MainMenuTitleAnchor{target.title});
    }

    std::optional<Rect> operator()(const MenuRowTarget& target) const {
        const auto menu = menuLayout(measure, picture);
        const auto* row = menu ? at(menu->rows, target.row) : nullptr;
        return row != nullptr ? std::optional(*row) : std::nullopt;
    }

    std::optional<Rect> operator()(const DialogButtonTarget& target) const {
        const auto alert = alertLayout(measure, picture);
        if (!alert) {
            return std::nullopt;
        }
        return target.button == DialogButton::deny ? alert->deny : alert->openSystemSettings;
    }

    std::optional<Rect> operator()(const PaneSwitchTarget& target) const {
        const auto pane = settingsPaneLayout(picture);
        const auto* row = pane ? at(pane->rows, target.row) : nullptr;
        return row != nullptr ? std::optional(row->toggle) : std::nullopt;
    }

    std::optional<Rect> operator()(const PaneRowTarget& target) const {
        const auto pane = settingsPaneLayout(picture);
        const auto* row = pane ? at(pane->rows, target.row) : nullptr;
        return row != nullptr ? std::optional(row->area) : std::nullopt;
    }

    std::optional<Rect> operator()(const PaneCloseTarget&) const {
        const auto pane = settingsPaneLayout(picture);
        return pane ? std::optional(pane->closeButton) : std::nullopt;
    }

    std::optional<Rect> operator()(const PaneRemoveTarget&) const {
        const auto pane = settingsPaneLayout(picture);
        return pane && canRemove(*picture.settingsPane) ? std::optional(pane->removeButton) : std::nullopt;
    }

    std::optional<Rect> operator()(const MailCloseTarget&) const {
        const auto mail = mailLayout(picture);
        return mail ? std::optional(mail->closeButton) : std::nullopt;
    }

    std::optional<Rect> operator()(const WindowCloseTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr && shown->isTitled() && shown->isClosable
                   ? std::optional(windowLayout(*shown).closeButton)
                   : std::nullopt;
    }

    std::optional<Rect> operator()(const WindowMinimizeTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr && shown->isTitled() && shown->isMiniaturizable
                   ? std::optional(windowLayout(*shown).minimizeButton)
                   : std::nullopt;
    }

    std::optional<Rect> operator()(const DockTileTarget& target) const {
        const std::vector<Rect> tiles = dockTiles(picture);
        for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
            if (picture.miniaturized[tile].number == target.window) {
                return tiles[tile];
            }
        }
        return std::nullopt;
    }

    std::optional<Rect> operator()(const WindowControlTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr ? std::optional(controlArea(windowLayout(*shown), *shown, target.element))
                                : std::nullopt;
    }

    std::optional<Rect> operator()(const WindowTitleTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr && shown->isTitled() ? std::optional(windowLayout(*shown).titleBar)
                                                     : std::nullopt;
    }

    // Everything that lies around other parts.
    template <typename Surrounding>
    std::optional<Rect> operator()(const Surrounding&) const {
        return std::nullopt;
    }

    const WindowPicture* windowWith(std::size_t number) const {
        const auto found =
            std::find_if(picture.windows.begin(), picture.windows.end(),
                         [number](const WindowPicture& shown) { return shown.number == number; });
        return found != picture.windows.end() ? &*found : nullptr;
    }

    std::optional<Rect> slotOf(std::size_t display, const MenuAnchor& anchor) const {
        return display < picture.displays.size()
                   ? std::optional(anchorSlot(
                         menuBarLayout(measure, picture.displays[display].bounds, picture), anchor))
                   : std::nullopt;
    }
};

// What of a part is at a place. Something may be there that nothing can be done with.
struct Hit {
    std::optional<DeskTarget> target;
};

std::optional<Hit> asHit(std::optional<DeskTarget> target) {
    return target ? std::optional(Hit{target}) : std::nullopt;
}

std::optional<Hit> hitOf(const StackedPart& part, TextMeasure& measure, const DeskPicture& picture,
                         Point place) {
    const auto lookIn = [place](const auto& layout, const auto& targetIn) {
        return layout ? asHit(targetIn(*layout, place)) : std::nullopt;
    };
    switch (part.kind) {
    case PartKind::menu:
        return lookIn(menuLayout(measure, picture), targetInMenu);
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
    case PartKind::dialog:
        return lookIn(alertLayout(measure, picture), targetInAlert);
    case PartKind::mail:
        return lookIn(mailLayout(picture), targetInMail);
    case PartKind::pane:
        return lookIn(settingsPaneLayout(picture), [&](const SettingsPaneLayout& layout, Point inside) {
            return targetInPane(layout, *picture.settingsPane, inside);
        });
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
    std::vector<Rect> frames;
    const auto addFrameOf = [&frames](const auto& layout) {
        if (layout) {
            frames.push_back(layout->frame);
        }
    };
    addFrameOf(alertLayout(measure_, picture));
    addFrameOf(mailLayout(picture));
    addFrameOf(settingsPaneLayout(picture));
    for (const WindowPicture& window : picture.windows) {
        frames.push_back(window.frame);
    }
    std::optional<Rect> all;
    for (const Rect& frame : frames) {
        all = all ? unionOf(*all, frame) : frame;
    }
    return all;
}

std::optional<Rect> DeskHitTest::areaOf(const DeskPicture& picture, const DeskTarget& target) {
    const auto area = std::visit(AreaOfTarget{measure_, picture}, target);
    // What there is no room for has a null rectangle in the layouts.
    return area && !area->isNull() ? area : std::nullopt;
}

} // namespace kestrune::desk
