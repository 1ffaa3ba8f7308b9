#include "desk/paint/mac/WindowLayout.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/RectMath.h"

#include <variant>

namespace kestrune::desk {

WindowLayout windowLayout(const WindowPicture& shown) {
    const Rect frame = shown.frame.standardized();
    const double titleHeight = shown.titleBarHeight;
    const double inset = shown.look == WindowLook::standard ? WindowButtonInset : ToolbarButtonInset;
    WindowLayout result;
    result.frame = frame;
    result.titleBar = {frame.minX(), frame.minY(), frame.width(), titleHeight};
    result.content = {frame.minX(), frame.minY() + titleHeight, frame.width(), frame.height() - titleHeight};
    result.closeButton = {frame.minX() + inset, frame.minY() + (titleHeight - WindowButtonSide) / 2,
                          WindowButtonSide, WindowButtonSide};
    result.minimizeButton = movedBy(result.closeButton, {WindowButtonDistance, 0});
    return result;
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
    return movedBy(area, layout.content.origin);
}

} // namespace kestrune::desk
