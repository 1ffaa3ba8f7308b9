#include "desk/paint/mac/ControlPainter.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/SoftShadow.h"

namespace kestrune::desk {
namespace {

void strokeLine(cairo_t* context, Point from, Point to, double width, const Color& color) {
    const SavedState saved{context};
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_width(context, width);
    cairo_move_to(context, from.x, from.y);
    cairo_line_to(context, to.x, to.y);
    setColor(context, color);
    cairo_stroke(context);
}

} // namespace

PushButtonLook pushButtonLook(ui::ControlSize size) {
    const auto look = [](double height, double padding, double cornerRadius, double textSize) {
        return PushButtonLook{
            height,
            padding,
            cornerRadius,
            {.size = textSize, .weight = FontWeight::medium, .alignment = TextAlignment::center}};
    };
    switch (size) {
    case ui::ControlSize::mini:
        return look(16, 7, 4, 9);
    case ui::ControlSize::small:
        return look(19, 9, 4.5, 11);
    case ui::ControlSize::large:
        return look(28, 14, 6.5, 13);
    case ui::ControlSize::regular:
        break;
    }
    return look(22, 12, 5.5, 13);
}

void paintPushButton(const Canvas& canvas, const Rect& area, std::string_view label, PushButtonState state,
                     const PushButtonLook& look) {
    const double radius = look.cornerRadius;
    const SystemColors& colors = canvas.palette.system;
    const Rect shadow{area.minX(), area.minY() + 0.75, area.width(), area.height()};
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
    constexpr double Arm = 2.4;
    const Color sign = rgb(0x000000, 0.6);
    if (isInUse && shown.isClosable) {
        strokeLine(canvas.context, {center.x - Arm, center.y - Arm}, {center.x + Arm, center.y + Arm}, 1.2,
                   sign);
        strokeLine(canvas.context, {center.x - Arm, center.y + Arm}, {center.x + Arm, center.y - Arm}, 1.2,
                   sign);
    }
    if (isInUse && shown.isMiniaturizable) {
        const double middle = center.x + WindowButtonDistance;
        strokeLine(canvas.context, {middle - 3, center.y}, {middle + 3, center.y}, 1.2, sign);
    }
}

void paintFocusRing(const Canvas& canvas, const Rect& control, double cornerRadius) {
    constexpr double Width = 3.5;
    const Rect outside{control.minX() - Width, control.minY() - Width, control.width() + 2 * Width,
                       control.height() + 2 * Width};
    strokeRoundedRectangle(canvas.context, outside, cornerRadius + Width, Width,
                           canvas.palette.system.focusRing);
}

} // namespace kestrune::desk
