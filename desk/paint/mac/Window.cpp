#include "desk/paint/mac/Window.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"
#include "desk/paint/mac/ScenePainter.h"
#include "desk/paint/mac/SymbolPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <variant>

namespace kestrune::desk {
namespace {

// A window that can be neither closed nor minimised nor resized has none of the buttons.
bool hasButtons(const WindowPicture& shown) {
    return shown.isClosable || shown.isMiniaturizable || shown.isResizable;
}

void paintBar(const Canvas& canvas, const Rect& bar, const WindowPicture& shown) {
    if (shown.isKey) {
        fillRoundedRectangle(canvas.context, bar, 0, canvas.palette.application.titleBar);
    }
    fillRoundedRectangle(canvas.context, {bar.minX(), bar.maxY() - 0.5, bar.width(), 0.5}, 0,
                         sceneColor(canvas.palette, ui::Color::separator));
}

void paintTitle(const Canvas& canvas, const Rect& bar, const WindowPicture& shown) {
    constexpr double ButtonsWidth = 72; // with the room after them
    constexpr double MailSignWidth = 36;
    const bool isStandard = shown.look == WindowLook::standard;
    const double beside =
        shown.look == WindowLook::sidebar ? sim::SidebarWidth : ButtonsWidth + MailSignWidth;
    const double left = isStandard ? ButtonsWidth : beside + ToolbarButtonInset;
    const double right = isStandard ? ButtonsWidth : ToolbarButtonInset;
    const WindowColors& colors = canvas.palette.application;
    const double start = isStandard ? bar.width() / 2 : left;
    canvas.text.paint(shown.title, {bar.minX() + start, centerOf(bar).y},
                      {.size = isStandard ? 13.0 : 15.0,
                       .weight = FontWeight::bold,
                       .color = shown.isKey ? colors.title : colors.inactiveTitle,
                       .alignment = isStandard ? TextAlignment::center : TextAlignment::leading,
                       .maximumWidth = std::max(0.0, bar.width() - left - right)});
}

// To send it, and to choose the text's look, at the ends of the bar of what is written.
void paintMailSigns(const Canvas& canvas, const Rect& bar) {
    const Color& color = canvas.palette.application.inactiveTitle;
    const double middle = bar.minY() + bar.height() / 2;
    paintSymbol(canvas.context, {"paperplane", ui::Font::system(16)}, {bar.minX() + 88, middle - 12, 24, 24},
                color);
    canvas.text.paint("Aa", {bar.maxX() - ToolbarButtonInset, middle},
                      {.size = 15, .color = color, .alignment = TextAlignment::trailing});
}

void paintSidebar(const Canvas& canvas, const Rect& window) {
    const double edge = window.minX() + sim::SidebarWidth;
    fillRoundedRectangle(canvas.context, {window.minX(), window.minY(), sim::SidebarWidth, window.height()},
                         0, rgb(0x000000, 0.04));
    fillRoundedRectangle(canvas.context, {edge - 0.5, window.minY(), 0.5, window.height()}, 0,
                         sceneColor(canvas.palette, ui::Color::separator));
}

} // namespace

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

std::optional<Rect> controlFrame(const ui::Element& element) {
    if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
        return button->frame;
    }
    const auto* const toggle = std::get_if<ui::ToggleElement>(&element);
    return toggle != nullptr ? std::optional(toggle->frame) : std::nullopt;
}

PanelStyle windowPanelStyle(const Palette& palette, const WindowPicture& shown) {
    return {.color = shown.look == WindowLook::paper ? palette.system.paper : palette.application.window,
            .cornerRadius = WindowCornerRadius,
            .shadowBlur = shown.isKey ? 36.0 : 24.0,
            .shadowDrop = shown.isKey ? 14.0 : 8.0};
}

void paintWindow(const Canvas& canvas, const WindowPicture& shown) {
    const WindowLayout layout = windowLayout(shown);
    const SavedState saved{canvas.context};
    addRoundedRectangle(canvas.context, layout.frame, WindowCornerRadius);
    cairo_clip(canvas.context);
    if (shown.look == WindowLook::sidebar) {
        paintSidebar(canvas, layout.frame);
    }
    // The title bar of an alert cannot be told from the rest of it.
    if (shown.isTitled() && (hasButtons(shown) || !shown.title.empty())) {
        if (shown.look == WindowLook::standard) {
            paintBar(canvas, layout.titleBar, shown);
        }
        if (hasButtons(shown)) {
            paintWindowButtons(canvas, layout.closeButton, shown);
        }
        paintTitle(canvas, layout.titleBar, shown);
        if (shown.look == WindowLook::paper) {
            paintMailSigns(canvas, layout.titleBar);
        }
    }
    paintScene(canvas, shown.scene, layout.content.origin,
               {.pressedElement = shown.pressedElement,
                .focusedElement = shown.focusedElement,
                .movingSwitch = shown.movingSwitch,
                .isInKeyWindow = shown.isKey});
}

void paintMiniature(const Canvas& canvas, const Rect& area, const WindowPicture& shown) {
    constexpr double SmallestScale = 1e-3;
    const double scale = std::min(area.width() / shown.frame.width(), area.height() / shown.frame.height());
    if (!(scale > SmallestScale && scale < 1 / SmallestScale)) {
        return; // Nothing to see, and the transformation would come close to a singular one.
    }
    const Rect frame = shown.frame.standardized();
    const SavedState saved{canvas.context};
    cairo_translate(canvas.context, area.minX() + (area.width() - shown.frame.width() * scale) / 2,
                    area.minY() + (area.height() - shown.frame.height() * scale) / 2);
    cairo_scale(canvas.context, scale, scale);
    cairo_translate(canvas.context, -frame.minX(), -frame.minY());
    fillRoundedRectangle(canvas.context, frame, WindowCornerRadius,
                         windowPanelStyle(canvas.palette, shown).color);
    paintWindow(canvas, shown);
    strokeRoundedRectangle(canvas.context, frame, WindowCornerRadius, 0.75 / scale,
                           canvas.palette.dockBorder);
}

} // namespace kestrune::desk
