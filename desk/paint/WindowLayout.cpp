#include "desk/paint/WindowLayout.h"

#include "desk/paint/ControlPainter.h"
#include "desk/paint/MenuBarLayout.h"
#include "desk/paint/PanelPainter.h"

#include <algorithm>
#include <cmath>
#include <variant>

namespace kestrune::desk {

WindowLayout windowLayoutAt(Point topLeft, const WindowPicture& shown) {
    constexpr double ButtonInset = 8;
    const double titleHeight = shown.titleBarHeight;
    const Size size{shown.frame.width(), shown.frame.height()};
    WindowLayout result;
    result.frame = {topLeft.x, topLeft.y, size.width, size.height};
    result.titleBar = {topLeft.x, topLeft.y, size.width, titleHeight};
    result.content = {topLeft.x, topLeft.y + titleHeight, size.width, size.height - titleHeight};
    result.closeButton = {topLeft.x + ButtonInset, topLeft.y + (titleHeight - WindowButtonSide) / 2,
                          WindowButtonSide, WindowButtonSide};
    result.minimizeButton = result.closeButton;
    result.minimizeButton.origin.x += WindowButtonDistance;
    return result;
}

WindowLayout windowLayout(const DeskLayout& layout, const WindowPicture& shown, Size window) {
    constexpr double BelowMenuBar = 6;
    const Size size{shown.frame.width(), shown.frame.height()};
    const Point anchor = layout.toWindow(
        {shown.frame.minX() + size.width / 2, shown.frame.minY() + size.height * WindowAnchorHeight});
    Rect frame{std::round(anchor.x - size.width / 2), std::round(anchor.y - size.height * WindowAnchorHeight),
               size.width, size.height};
    const Point middle{shown.frame.minX() + size.width / 2, shown.frame.minY() + size.height / 2};
    if (const DisplayPlace* const place = layout.placeContaining(middle)) {
        const double highest = menuBarArea(*place, layout.scale()).maxY() + BelowMenuBar;
        frame.origin.y = std::max(frame.origin.y, std::round(highest));
    }
    return windowLayoutAt(keptInside(frame, window).origin, shown);
}

Rect controlArea(const WindowLayout& layout, const WindowPicture& shown, std::size_t element) {
    if (element >= shown.scene.elements.size()) {
        return Rect::null();
    }
    const ui::Element& candidate = shown.scene.elements[element];
    Rect area = Rect::null();
    if (const auto* const button = std::get_if<ui::ButtonElement>(&candidate)) {
        area = button->frame;
    } else if (const auto* const toggle = std::get_if<ui::ToggleElement>(&candidate)) {
        area = toggle->frame;
    } else {
        return area;
    }
    return {area.minX() + layout.content.minX(), area.minY() + layout.content.minY(), area.width(),
            area.height()};
}

} // namespace kestrune::desk
