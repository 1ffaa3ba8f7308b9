#include "desk/paint/mac/ControlPainter.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <array>

namespace kestrune::desk {

PushButtonLook pushButtonLook(ui::ControlSize size) {
    const auto look = [](double height, double padding, double cornerRadius, double textSize) {
        const TextStyle label{
            .size = textSize, .weight = FontWeight::medium, .alignment = TextAlignment::center};
        return PushButtonLook{height, padding, cornerRadius, label};
    };
    const std::array looks{look(16, 7, 4, 9), look(19, 9, 4.5, 11), look(22, 12, 5.5, 13),
                           look(28, 14, 6.5, 13)};
    return looks.at(static_cast<std::size_t>(size));
}

void paintPushButton(const Canvas& canvas, const Rect& area, std::string_view label, PushButtonState state,
                     const PushButtonLook& look) {
    const double radius = look.cornerRadius;
    const SystemColors& colors = canvas.palette.system;
    const Rect shadow = movedBy(area, {0, 0.75});
    paintSoftShadow(canvas.context, shadow, 2, rgb(0x000000, 0.16),
                    [&](cairo_t* mask) { addRoundedRectangle(mask, shadow, radius); });
    const Color face = state.isDefault ? colors.accent : colors.buttonFace;
    addRoundedRectangle(canvas.context, area, radius);
    fillWithVerticalGradient(canvas.context, area.minY(), area.maxY(),
                             {mix(face, rgb(0xFFFFFF), 0.08), face});
    strokeRoundedRectangle(canvas.context, area, radius, 0.5, colors.buttonEdge);
    if (state.isPressed) {
        const Color shade = state.isDefault ? rgb(0x000000, 0.18) : colors.pressedShade;
        fillRoundedRectangle(canvas.context, area, radius, shade);
    }
    TextStyle style = look.label;
    style.color = state.isDefault ? rgb(0xFFFFFF) : colors.text;
    canvas.text.paint(label, centerOf(area), style);
}

double switchTravel(const Rect& area) { return area.width() - area.height(); }

void paintSwitch(const Canvas& canvas, const Rect& area, SwitchState state) {
    const SystemColors& colors = canvas.palette.system;
    const double radius = area.height() / 2;
    const double position = state.position.value_or(state.isOn ? 1 : 0);
    const Color onTrack = state.isInKeyWindow ? colors.accent : colors.inactiveTrack;
    if (position < 1) {
        fillRoundedRectangle(canvas.context, area, radius, colors.switchTrack);
    }
    if (position > 0) {
        fillRoundedRectangle(canvas.context, area, radius, onTrack.withAlpha(onTrack.alpha * position));
    }
    strokeRoundedRectangle(canvas.context, area, radius, 0.5, colors.buttonEdge);
    if (state.isPressed) {
        fillRoundedRectangle(canvas.context, area, radius, colors.pressedShade);
    }
    const double gap = area.height() * 0.078;
    const double knobRadius = radius - gap;
    const Point knob{area.minX() + radius + position * switchTravel(area), area.minY() + radius};
    const Rect shadow{knob.x - knobRadius, knob.y - knobRadius + 0.75, 2 * knobRadius, 2 * knobRadius};
    paintSoftShadow(canvas.context, shadow, 2, rgb(0x000000, 0.30),
                    [&](cairo_t* mask) { addRoundedRectangle(mask, shadow, knobRadius); });
    fillCircle(canvas.context, knob, knobRadius, rgb(0xFFFFFF));
}

void paintWindowButtons(const Canvas& canvas, const Rect& close, const WindowPicture& shown) {
    const double radius = WindowButtonSide / 2;
    const Point center = centerOf(close);
    const bool isInUse =
        (shown.isClosable && (shown.isCloseButtonPressed || shown.isCloseButtonHovered)) ||
        (shown.isMiniaturizable && (shown.isMinimizeButtonPressed || shown.isMinimizeButtonHovered));
    const auto paintButton = [&](double steps, bool isEnabled, bool isPressed, const Color& color) {
        const Point middle{center.x + steps * WindowButtonDistance, center.y};
        if (!isEnabled || !(shown.isKey || isInUse)) {
            fillCircle(canvas.context, middle, radius, canvas.palette.system.windowButton);
            return;
        }
        fillCircle(canvas.context, middle, radius, isPressed ? mix(color, rgb(0x000000), 0.25) : color);
        strokeRoundedRectangle(canvas.context,
                               {middle.x - radius, middle.y - radius, WindowButtonSide, WindowButtonSide},
                               radius, 0.5, rgb(0x000000, 0.16));
    };
    paintButton(0, shown.isClosable, shown.isCloseButtonPressed, rgb(0xFF5F57));
    paintButton(1, shown.isMiniaturizable, shown.isMinimizeButtonPressed, rgb(0xFEBC2E));
    paintButton(2, shown.isResizable, false, rgb(0x28C840));
    const auto addLine = [&](Point middle, Point arm) {
        cairo_move_to(canvas.context, middle.x - arm.x, middle.y - arm.y);
        cairo_line_to(canvas.context, middle.x + arm.x, middle.y + arm.y);
    };
    if (isInUse && shown.isClosable) {
        addLine(center, {2.4, 2.4});
        addLine(center, {2.4, -2.4});
    }
    if (isInUse && shown.isMiniaturizable) {
        addLine({center.x + WindowButtonDistance, center.y}, {3, 0});
    }
    setColor(canvas.context, rgb(0x000000, 0.6));
    strokeRound(canvas.context, 1.2);
}

void paintFocusRing(const Canvas& canvas, const Rect& control, double cornerRadius) {
    constexpr double Width = 3.5;
    strokeRoundedRectangle(canvas.context, enlargedBy(control, Width), cornerRadius + Width, Width,
                           canvas.palette.system.focusRing);
}

} // namespace kestrune::desk
