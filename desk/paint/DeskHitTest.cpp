#include "desk/paint/DeskHitTest.h"

#include "desk/paint/AlertLayout.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DockPainter.h"
#include "desk/paint/MailLayout.h"
#include "desk/paint/MenuBarLayout.h"
#include "desk/paint/MenuLayout.h"
#include "desk/paint/SettingsPaneLayout.h"
#include "desk/paint/WindowLayout.h"

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
    return Rect{control.minX() - Reach, control.minY() - Reach, control.width() + 2 * Reach,
                control.height() + 2 * Reach}
        .contains(place);
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

// In the frontmost of the windows of one depth that is at the place.
std::optional<DeskTarget> targetInWindows(const DeskLayout& layout, const DeskPicture& picture, Size window,
                                          WindowDepth depth, Point place) {
    for (const WindowPicture& shown : picture.windows) {
        if (shown.depth == depth) {
            if (auto target = targetInWindow(windowLayout(layout, shown, window), shown, place)) {
                return target;
            }
        }
    }
    return std::nullopt;
}

std::optional<DeskTarget> targetInMenuBar(const MenuBarLayout& bar, std::size_t display, Point place) {
    for (std::size_t item = 0; item < bar.statusItems.size(); ++item) {
        if (bar.statusItems[item].slot.contains(place)) {
            return StatusItemTarget{display, item};
        }
    }
    for (std::size_t title = 0; title < bar.titles.size(); ++title) {
        if (bar.titles[title].contains(place)) {
            return MainMenuTitleTarget{display, title};
        }
    }
    return std::nullopt;
}

// Where the tiles of the minimised windows are; none without a Dock.
std::vector<Rect> dockTiles(const DeskLayout& layout, const DeskPicture& picture) {
    const DisplayPlace* const place = picture.dockDisplay ? layout.place(*picture.dockDisplay) : nullptr;
    return place != nullptr ? dockPlace(*place, layout.scale(), picture.miniaturized.size()).tiles
                            : std::vector<Rect>();
}

template <typename Place>
const Place* at(const std::vector<Place>& places, std::size_t index) {
    return index < places.size() ? &places[index] : nullptr;
}

// Finds the area of a part, each kind by the layout that it belongs to.
struct AreaOfTarget {
    TextMeasure& measure;
    const DeskLayout& layout;
    const DeskPicture& picture;
    Size window;

    std::optional<Rect> operator()(const StatusItemTarget& target) const {
        const auto bar = menuBar(target.display);
        const auto* item = bar ? at(bar->statusItems, target.item) : nullptr;
        return item != nullptr ? std::optional(item->slot) : std::nullopt;
    }

    std::optional<Rect> operator()(const MainMenuTitleTarget& target) const {
        const auto bar = menuBar(target.display);
        const auto* title = bar ? at(bar->titles, target.title) : nullptr;
        return title != nullptr ? std::optional(*title) : std::nullopt;
    }

    std::optional<Rect> operator()(const MenuRowTarget& target) const {
        const auto menu = menuLayout(measure, layout, picture, window);
        const auto* row = menu ? at(menu->rows, target.row) : nullptr;
        return row != nullptr ? std::optional(*row) : std::nullopt;
    }

    std::optional<Rect> operator()(const DialogButtonTarget& target) const {
        const auto alert = alertLayout(measure, layout, picture, window);
        if (!alert) {
            return std::nullopt;
        }
        return target.button == DialogButton::deny ? alert->deny : alert->openSystemSettings;
    }

    std::optional<Rect> operator()(const PaneSwitchTarget& target) const {
        const auto pane = settingsPaneLayout(layout, picture, window);
        const auto* row = pane ? at(pane->rows, target.row) : nullptr;
        return row != nullptr ? std::optional(row->toggle) : std::nullopt;
    }

    std::optional<Rect> operator()(const PaneRowTarget& target) const {
        const auto pane = settingsPaneLayout(layout, picture, window);
        const auto* row = pane ? at(pane->rows, target.row) : nullptr;
        return row != nullptr ? std::optional(row->area) : std::nullopt;
    }

    std::optional<Rect> operator()(const PaneCloseTarget&) const {
        const auto pane = settingsPaneLayout(layout, picture, window);
        return pane ? std::optional(pane->closeButton) : std::nullopt;
    }

    std::optional<Rect> operator()(const PaneRemoveTarget&) const {
        const auto pane = settingsPaneLayout(layout, picture, window);
        return pane && canRemove(*picture.settingsPane) ? std::optional(pane->removeButton) : std::nullopt;
    }

    std::optional<Rect> operator()(const MailCloseTarget&) const {
        const auto mail = mailLayout(layout, picture, window);
        return mail ? std::optional(mail->closeButton) : std::nullopt;
    }

    std::optional<Rect> operator()(const WindowCloseTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr && shown->isTitled() && shown->isClosable
                   ? std::optional(windowLayout(layout, *shown, window).closeButton)
                   : std::nullopt;
    }

    std::optional<Rect> operator()(const WindowMinimizeTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr && shown->isTitled() && shown->isMiniaturizable
                   ? std::optional(windowLayout(layout, *shown, window).minimizeButton)
                   : std::nullopt;
    }

    std::optional<Rect> operator()(const DockTileTarget& target) const {
        const std::vector<Rect> tiles = dockTiles(layout, picture);
        for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
            if (picture.miniaturized[tile].number == target.window) {
                return tiles[tile];
            }
        }
        return std::nullopt;
    }

    std::optional<Rect> operator()(const WindowControlTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr
                   ? std::optional(controlArea(windowLayout(layout, *shown, window), *shown, target.element))
                   : std::nullopt;
    }

    std::optional<Rect> operator()(const WindowTitleTarget& target) const {
        const WindowPicture* const shown = windowWith(target.window);
        return shown != nullptr && shown->isTitled()
                   ? std::optional(windowLayout(layout, *shown, window).titleBar)
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

    std::optional<MenuBarLayout> menuBar(std::size_t display) const {
        const DisplayPlace* place = layout.place(display);
        return place != nullptr ? std::optional(menuBarLayout(measure, *place, layout.scale(), picture))
                                : std::nullopt;
    }
};

} // namespace

std::optional<DeskTarget> DeskHitTest::targetAt(const DeskPicture& picture, Size window, Point place) {
    const DeskLayout layout = DeskLayout::of(picture, window);
    std::optional<DeskTarget> target;
    const auto lookInWindows = [&](WindowDepth depth) {
        target = target ? target : targetInWindows(layout, picture, window, depth, place);
    };
    if (const auto menu = menuLayout(measure_, layout, picture, window)) {
        target = targetInMenu(*menu, place);
    }
    lookInWindows(WindowDepth::beforeDialog);
    if (const auto alert = target ? std::nullopt : alertLayout(measure_, layout, picture, window)) {
        target = targetInAlert(*alert, place);
    }
    lookInWindows(WindowDepth::beforePane);
    if (const auto mail = target ? std::nullopt : mailLayout(layout, picture, window)) {
        target = targetInMail(*mail, place);
    }
    if (const auto pane = target ? std::nullopt : settingsPaneLayout(layout, picture, window)) {
        target = targetInPane(*pane, *picture.settingsPane, place);
    }
    lookInWindows(WindowDepth::behindSystemWindows);
    for (std::size_t display = 0; !target && display < picture.displays.size(); ++display) {
        const DisplayPlace* const displayPlace = layout.place(display);
        // Only a bar under the place is worth measuring its texts.
        if (displayPlace && menuBarArea(*displayPlace, layout.scale()).contains(place)) {
            target = targetInMenuBar(menuBarLayout(measure_, *displayPlace, layout.scale(), picture), display,
                                     place);
        }
    }
    const std::vector<Rect> tiles = target ? std::vector<Rect>() : dockTiles(layout, picture);
    for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
        if (tiles[tile].contains(place)) {
            target = DockTileTarget{picture.miniaturized[tile].number};
        }
    }
    return target;
}

std::optional<Rect> DeskHitTest::areaOf(const DeskPicture& picture, Size window, const DeskTarget& target) {
    const DeskLayout layout = DeskLayout::of(picture, window);
    const auto area = std::visit(AreaOfTarget{measure_, layout, picture, window}, target);
    // What there is no room for has a null rectangle in the layouts.
    return area && !area->isNull() ? area : std::nullopt;
}

} // namespace kestrune::desk
