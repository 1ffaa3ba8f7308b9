#include "desk/paint/mac/WindowPainter.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/ScenePainter.h"
#include "desk/paint/toolkit/SceneColor.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>

namespace kestrune::desk {
namespace {

// A window that can be neither closed nor minimised nor resized has none of the buttons.
bool hasButtons(const WindowPicture& shown) {
    return shown.isClosable || shown.isMiniaturizable || shown.isResizable;
}

void paintTitleBar(const Canvas& canvas, const WindowLayout& layout, const WindowPicture& shown) {
    constexpr double ButtonsWidth = 72; // with the room after them
    const WindowColors& colors = canvas.palette.application;
    const Rect& bar = layout.titleBar;
    if (shown.isKey) {
        cairo_rectangle(canvas.context, bar.minX(), bar.minY(), bar.width(), bar.height());
        setColor(canvas.context, colors.titleBar);
        cairo_fill(canvas.context);
    }
    fillRoundedRectangle(canvas.context, {bar.minX(), bar.maxY() - 0.5, bar.width(), 0.5}, 0,
                         sceneColor(canvas.palette, ui::Color::separator));
    if (hasButtons(shown)) {
        paintWindowButtons(canvas, layout.closeButton,
                           {.isClosable = shown.isClosable,
                            .isMiniaturizable = shown.isMiniaturizable,
                            .isZoomable = shown.isResizable,
                            .isActive = shown.isKey,
                            .isClosePressed = shown.isCloseButtonPressed,
                            .isCloseHovered = shown.isCloseButtonHovered,
                            .isMinimizePressed = shown.isMinimizeButtonPressed,
                            .isMinimizeHovered = shown.isMinimizeButtonHovered});
    }
    canvas.text.paint(shown.title, {bar.minX() + bar.width() / 2, bar.minY() + bar.height() / 2},
                      {.size = 13,
                       .weight = FontWeight::bold,
                       .color = shown.isKey ? colors.title : colors.inactiveTitle,
                       .alignment = TextAlignment::center,
                       .maximumWidth = std::max(0.0, bar.width() - 2 * ButtonsWidth)});
}

} // namespace

PanelStyle applicationWindowStyle(const Palette& palette, bool isActive) {
    PanelStyle style = windowPanelStyle(palette);
    style.color = palette.application.window;
    if (!isActive) {
        style.shadowBlur = 24;
        style.shadowDrop = 8;
    }
    return style;
}

void paintWindow(const Canvas& canvas, const WindowLayout& layout, const WindowPicture& shown) {
    const SavedState saved{canvas.context};
    addRoundedRectangle(canvas.context, layout.frame,
                        applicationWindowStyle(canvas.palette, shown.isKey).cornerRadius);
    cairo_clip(canvas.context);
    // The title bar of an alert cannot be told from the rest of it.
    if (shown.isTitled() && (hasButtons(shown) || !shown.title.empty())) {
        paintTitleBar(canvas, layout, shown);
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
    const WindowLayout layout = windowLayout(shown);
    const PanelStyle style = applicationWindowStyle(canvas.palette, false);
    const SavedState saved{canvas.context};
    cairo_translate(canvas.context, area.minX() + (area.width() - shown.frame.width() * scale) / 2,
                    area.minY() + (area.height() - shown.frame.height() * scale) / 2);
    cairo_scale(canvas.context, scale, scale);
    cairo_translate(canvas.context, -layout.frame.minX(), -layout.frame.minY());
    fillRoundedRectangle(canvas.context, layout.frame, style.cornerRadius, style.color);
    paintWindow(canvas, layout, shown);
    strokeRoundedRectangle(canvas.context, layout.frame, style.cornerRadius, 0.75 / scale,
                           canvas.palette.dockBorder);
}

} // namespace kestrune::desk
